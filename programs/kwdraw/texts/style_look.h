/// What a text style says of the looks of its texts.
#pragma once

#include <database/object_id.h>
#include <kwdraw/texts/text_look.h>

/// The look of letters of a style, capital letters 1 high; the plain look where there is no style.
TextLook lookOfStyle(KdDbObjectId style);
