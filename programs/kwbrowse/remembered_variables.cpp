#include <kwbrowse/remembered_variables.h>

#include <string>

#include <editor/system_variables.h>
#include <platform/config.h>
#include <runtime/status.h>

namespace {

constexpr const wchar_t* kRemembered[] = {L"COLORTHEME", L"QSELECTLISTVALUES"};

std::wstring keyOf(const wchar_t* variable)
{
    return std::wstring(L"SystemVariables/") + variable;
}

} // namespace

short switchValue(const wchar_t* variable)
{
    resbuf value{};
    return kdedGetVar(variable, &value) == RTNORM ? value.resval.rint : short{0};
}

void setSwitch(const wchar_t* variable, short value)
{
    resbuf record{};
    record.restype = RTSHORT;
    record.resval.rint = value;
    kdedSetVar(variable, &record);
}

void restoreVariables()
{
    KdadVariant value;
    for (const wchar_t* variable : kRemembered) {
        if (kdadConfig().getValue(KwdrawConfig::kUserInterface, keyOf(variable).c_str(), value))
            setSwitch(variable, static_cast<short>(value.integerOr(switchValue(variable))));
    }
}

void storeVariables()
{
    const KwdrawConfig::Update together(kdadConfig());
    for (const wchar_t* variable : kRemembered)
        kdadConfig().setValue(KwdrawConfig::kUserInterface, keyOf(variable).c_str(),
                              KdadVariant::ofInteger(switchValue(variable)));
}
