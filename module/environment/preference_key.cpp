#include <environment/preference_key.h>

#include <values/init_order.h>

std::wstring PreferenceKey::m_currentProfilePath [[gnu::init_priority(kInitProfilePath)]];
