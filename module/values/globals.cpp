#include <values/globals.h>

#include <values/init_order.h>

[[gnu::init_priority(kInitComboValues)]] std::vector<KdCmColor> gComboValues;

[[gnu::init_priority(kInitConstraintsLayer)]] const std::wstring ConstraintsLayerName =
    L"*ADSK_CONSTRAINTS";

bool g_bIsIni3DSolidProp = false;
