/// Declaring entity classes.
#pragma once

#include <database/entity.h>

/// Declares an entity class that has no data and no operations beyond those of its parent.
#define KD_DB_PLAIN_ENTITY(Class, Parent)                                                          \
    class KW_EXPORT Class : public Parent                                                          \
    {                                                                                              \
        KD_RX_DECLARE(Class)                                                                       \
    };
