#include <providers/text_providers.h>

namespace {

constexpr ResourceText kKeys[] = {
    {77660, L"Text:Contents"},     {77661, L"Text:Height"},          {77662, L"Text:Width Factor"},
    {77663, L"Text:Char Spacing"}, {77664, L"Position:Center"},      {77665, L"Position:Normal"},
    {77666, L"Position:Radius"},   {77667, L"Position:Start Angle"}, {77668, L"Position:End Angle"},
    {77669, L"Misc:Arc offset"},   {77670, L"Misc:Left offset"},     {77671, L"Misc:Right offset"},
};

} // namespace

int KdDbArcAlignedText_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                                KdArray<bool>& flags)
{
    const int status = KdDbEntity_Extension::PropertyCount(entity, names, flags);
    for (const ResourceText& key : kKeys) { // listed and never answered, as intended
        names.append(key.text());
        flags.append(false);
    }
    return status;
}
