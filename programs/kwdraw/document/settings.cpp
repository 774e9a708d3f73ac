#include <kwdraw/document/settings.h>

#include <string>

#include <editor/system_variables.h>
#include <platform/config.h>
#include <runtime/status.h>

namespace {

constexpr const wchar_t* kRemembered[] = {L"COLORTHEME", L"QSELECTLISTVALUES"};

std::wstring keyOf(const wchar_t* folder, const wchar_t* name)
{
    return std::wstring(folder) + L'/' + name;
}

std::wstring ownKey(const wchar_t* name)
{
    return keyOf(L"kwdraw", name);
}

std::wstring variableKey(const wchar_t* variable)
{
    return keyOf(L"SystemVariables", variable);
}

} // namespace

QString storedText(const wchar_t* name)
{
    KdadVariant value;
    if (!kdadConfig().getValue(KwdrawConfig::kUserInterface, ownKey(name).c_str(), value))
        return {};
    return QString::fromWCharArray(value.text());
}

void storeText(const wchar_t* name, const QString& text)
{
    kdadConfig().setValue(KwdrawConfig::kUserInterface, ownKey(name).c_str(),
                          KdadVariant::ofText(text.toStdWString().c_str()));
}

QByteArray storedBytes(const wchar_t* name)
{
    return QByteArray::fromBase64(storedText(name).toLatin1());
}

void storeBytes(const wchar_t* name, const QByteArray& bytes)
{
    storeText(name, QString::fromLatin1(bytes.toBase64()));
}

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
        if (kdadConfig().getValue(KwdrawConfig::kUserInterface, variableKey(variable).c_str(),
                                  value))
            setSwitch(variable, static_cast<short>(value.integerOr(switchValue(variable))));
    }
}

void storeVariables()
{
    const KwdrawConfig::Update together(kdadConfig());
    for (const wchar_t* variable : kRemembered)
        kdadConfig().setValue(KwdrawConfig::kUserInterface, variableKey(variable).c_str(),
                              KdadVariant::ofInteger(switchValue(variable)));
}
