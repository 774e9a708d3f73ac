/// The variables that say how dimensions look. A dimension style holds a value of each; dimensions,
/// leaders and tolerance frames may set some of them apart from their style.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include <database/color.h>
#include <database/object_id.h>
#include <runtime/kd_string.h>

/// What a variable holds, and so the type that its accessors give.
enum class KdDbDimKind : std::uint8_t
{
    Real,      ///< `double`, lengths in drawing units
    Angle,     ///< `double` in radians; in the table of styles of a drawing file degrees
    Integer,   ///< `int`
    Byte,      ///< `signed char`
    Character, ///< `char`
    Switch,    ///< `bool`
    Color,     ///< `KdCmColor`; in drawing files an index
    Text,      ///< `KdString`
    TextStyle, ///< `KdDbObjectId` of a record; the names of the three kinds stand in old files
    Block,     ///< the same; the null id is the filled closed arrow
    Linetype,  ///< the same
};

/// All variables: accessor, name, group code in styles and overrides (0 if no file holds the
/// variable), kind, and initial value (of a colour its index, of an object its name).
// clang-format off
#define KD_DIM_VARIABLES(ROW)                                                                      \
    ROW(dimpost,         DIMPOST,           3, Text,      L"")                                     \
    ROW(dimapost,        DIMAPOST,          4, Text,      L"")                                     \
    ROW(dimscale,        DIMSCALE,         40, Real,      1.0)                                     \
    ROW(dimasz,          DIMASZ,           41, Real,      0.18)                                    \
    ROW(dimexo,          DIMEXO,           42, Real,      0.0625)                                  \
    ROW(dimdli,          DIMDLI,           43, Real,      0.38)                                    \
    ROW(dimexe,          DIMEXE,           44, Real,      0.18)                                    \
    ROW(dimrnd,          DIMRND,           45, Real,      0.0)                                     \
    ROW(dimdle,          DIMDLE,           46, Real,      0.0)                                     \
    ROW(dimtp,           DIMTP,            47, Real,      0.0)                                     \
    ROW(dimtm,           DIMTM,            48, Real,      0.0)                                     \
    ROW(dimfxl,          DIMFXL,           49, Real,      1.0)                                     \
    ROW(dimjogang,       DIMJOGANG,        50, Angle,     0.78539816339744831)                     \
    ROW(dimtfill,        DIMTFILL,         69, Integer,   0)                                       \
    ROW(dimtfillclr,     DIMTFILLCLR,      70, Color,     0)                                       \
    ROW(dimtol,          DIMTOL,           71, Switch,    0)                                       \
    ROW(dimlim,          DIMLIM,           72, Switch,    0)                                       \
    ROW(dimtih,          DIMTIH,           73, Switch,    1)                                       \
    ROW(dimtoh,          DIMTOH,           74, Switch,    1)                                       \
    ROW(dimse1,          DIMSE1,           75, Switch,    0)                                       \
    ROW(dimse2,          DIMSE2,           76, Switch,    0)                                       \
    ROW(dimtad,          DIMTAD,           77, Integer,   0)                                       \
    ROW(dimzin,          DIMZIN,           78, Byte,      0)                                       \
    ROW(dimazin,         DIMAZIN,          79, Byte,      0)                                       \
    ROW(dimarcsym,       DIMARCSYM,        90, Integer,   0)                                       \
    ROW(dimtxt,          DIMTXT,          140, Real,      0.18)                                    \
    ROW(dimcen,          DIMCEN,          141, Real,      0.09)                                    \
    ROW(dimtsz,          DIMTSZ,          142, Real,      0.0)                                     \
    ROW(dimaltf,         DIMALTF,         143, Real,      25.4)                                    \
    ROW(dimlfac,         DIMLFAC,         144, Real,      1.0)                                     \
    ROW(dimtvp,          DIMTVP,          145, Real,      0.0)                                     \
    ROW(dimtfac,         DIMTFAC,         146, Real,      1.0)                                     \
    ROW(dimgap,          DIMGAP,          147, Real,      0.09)                                    \
    ROW(dimaltrnd,       DIMALTRND,       148, Real,      0.0)                                     \
    ROW(dimalt,          DIMALT,          170, Switch,    0)                                       \
    ROW(dimaltd,         DIMALTD,         171, Integer,   2)                                       \
    ROW(dimtofl,         DIMTOFL,         172, Switch,    0)                                       \
    ROW(dimsah,          DIMSAH,          173, Switch,    0)                                       \
    ROW(dimtix,          DIMTIX,          174, Switch,    0)                                       \
    ROW(dimsoxd,         DIMSOXD,         175, Switch,    0)                                       \
    ROW(dimclrd,         DIMCLRD,         176, Color,     0)                                       \
    ROW(dimclre,         DIMCLRE,         177, Color,     0)                                       \
    ROW(dimclrt,         DIMCLRT,         178, Color,     0)                                       \
    ROW(dimadec,         DIMADEC,         179, Integer,   0)                                       \
    ROW(dimdec,          DIMDEC,          271, Integer,   4)                                       \
    ROW(dimtdec,         DIMTDEC,         272, Integer,   4)                                       \
    ROW(dimaltu,         DIMALTU,         273, Integer,   2)                                       \
    ROW(dimalttd,        DIMALTTD,        274, Integer,   2)                                       \
    ROW(dimaunit,        DIMAUNIT,        275, Integer,   0)                                       \
    ROW(dimfrac,         DIMFRAC,         276, Integer,   0)                                       \
    ROW(dimlunit,        DIMLUNIT,        277, Integer,   2)                                       \
    ROW(dimdsep,         DIMDSEP,         278, Character, '.')                                     \
    ROW(dimtmove,        DIMTMOVE,        279, Integer,   0)                                       \
    ROW(dimjust,         DIMJUST,         280, Integer,   0)                                       \
    ROW(dimsd1,          DIMSD1,          281, Switch,    0)                                       \
    ROW(dimsd2,          DIMSD2,          282, Switch,    0)                                       \
    ROW(dimtolj,         DIMTOLJ,         283, Integer,   1)                                       \
    ROW(dimtzin,         DIMTZIN,         284, Byte,      0)                                       \
    ROW(dimaltz,         DIMALTZ,         285, Byte,      0)                                       \
    ROW(dimalttz,        DIMALTTZ,        286, Byte,      0)                                       \
    ROW(dimupt,          DIMUPT,          288, Switch,    0)                                       \
    ROW(dimatfit,        DIMATFIT,        289, Integer,   3)                                       \
    ROW(dimfxlon,        DIMFXLON,        290, Switch,    0)                                       \
    ROW(dimtxtdirection, DIMTXTDIRECTION, 294, Integer,   0)                                       \
    ROW(dimtxsty,        DIMTXSTY,        340, TextStyle, L"Standard")                             \
    ROW(dimldrblk,       DIMLDRBLK,       341, Block,     L"")                                     \
    ROW(dimblk,          DIMBLK,          342, Block,     L"")                                     \
    ROW(dimblk1,         DIMBLK1,         343, Block,     L"")                                     \
    ROW(dimblk2,         DIMBLK2,         344, Block,     L"")                                     \
    ROW(dimltype,        DIMLTYPE,        345, Linetype,  L"")                                     \
    ROW(dimltex1,        DIMLTEX1,        346, Linetype,  L"")                                     \
    ROW(dimltex2,        DIMLTEX2,        347, Linetype,  L"")                                     \
    ROW(dimlwd,          DIMLWD,          371, Integer,   -2)                                      \
    ROW(dimlwe,          DIMLWE,          372, Integer,   -2)                                      \
    ROW(dimmzf,          DIMMZF,            0, Real,      100.0)                                   \
    ROW(dimmzs,          DIMMZS,            0, Text,      L"")                                     \
    ROW(dimaltmzf,       DIMALTMZF,         0, Real,      100.0)                                   \
    ROW(dimaltmzs,       DIMALTMZS,         0, Text,      L"")
// clang-format on

/// The variables by their accessors: `KdDbDimVar::dimasz`. Each is the number of its row.
enum class KdDbDimVar : std::uint8_t
{
#define KD_DIM_ENUMERATOR(accessor, NAME, code, kind, initial) accessor,
    KD_DIM_VARIABLES(KD_DIM_ENUMERATOR)
#undef KD_DIM_ENUMERATOR
};

/// Reals and angles as `double`, texts as texts, objects as ids, all else as integers; a colour as
/// the bits of its word.
using KdDbDimValue = std::variant<std::int32_t, double, KdString, KdDbObjectId>;

struct KdDbDimVariable
{
    const wchar_t* name; ///< upper case
    int code;            ///< see `KD_DIM_VARIABLES`
    KdDbDimKind kind;
    KdDbDimValue initial;
};

/// All rows; `KdDbDimVar` is the index.
KW_EXPORT std::span<const KdDbDimVariable> kddbDimVariables();
inline const KdDbDimVariable& kddbDimVariable(KdDbDimVar variable)
{
    return kddbDimVariables()[static_cast<std::size_t>(variable)];
}
/// The variable of a group code.
KW_EXPORT std::optional<KdDbDimVar> kddbDimVariableOfCode(int code);
/// A colour in the form in which values hold it, by its index, or by the word of a `KdCmColor`,
/// which some programs write instead. Other numbers count as by layer.
KW_EXPORT KdDbDimValue kddbDimColor(int number);

/// Values of some variables. Takes little room while there are none.
class KW_EXPORT KdDbDimValues
{
  public:
    /// The value of a variable; null if it has none here.
    const KdDbDimValue* find(KdDbDimVar variable) const;
    bool has(KdDbDimVar variable) const { return find(variable) != nullptr; }
    /// Sets a value, which must be in the form of the variable's kind.
    void set(KdDbDimVar variable, KdDbDimValue value);
    std::size_t count() const { return m_values.size(); }

  private:
    static constexpr std::size_t kWordBits = 64;

    bool isPresent(std::size_t number) const
    {
        return (m_present[number / kWordBits] >> (number % kWordBits) & 1) != 0;
    }
    std::size_t placeOf(std::size_t number) const;

    std::uint64_t m_present[2] = {};
    std::vector<KdDbDimValue> m_values; ///< of the present variables in their order
};

/// A value in the type of its kind.
template <KdDbDimKind Kind>
auto kddbDimValueAs(const KdDbDimValue& value)
{
    if constexpr (Kind == KdDbDimKind::Real || Kind == KdDbDimKind::Angle)
        return std::get<double>(value);
    else if constexpr (Kind == KdDbDimKind::Text)
        return std::get<KdString>(value);
    else if constexpr (Kind >= KdDbDimKind::TextStyle)
        return std::get<KdDbObjectId>(value);
    else if constexpr (Kind == KdDbDimKind::Color)
        return KdCmColor(static_cast<std::uint32_t>(std::get<std::int32_t>(value)));
    else if constexpr (Kind == KdDbDimKind::Switch)
        return std::get<std::int32_t>(value) != 0;
    else if constexpr (Kind == KdDbDimKind::Byte)
        return static_cast<signed char>(std::get<std::int32_t>(value));
    else if constexpr (Kind == KdDbDimKind::Character)
        return static_cast<char>(std::get<std::int32_t>(value));
    else
        return static_cast<int>(std::get<std::int32_t>(value));
}

#define KD_DIM_ACCESSOR(accessor, NAME, code, kind, initial)                                       \
    auto accessor() const                                                                          \
    {                                                                                              \
        return kddbDimValueAs<KdDbDimKind::kind>(dimensionVariable(KdDbDimVar::accessor));         \
    }

/// Inside a class with a `dimensionVariable(KdDbDimVar) const` that gives values: adds an accessor
/// for each variable, such as `double dimasz() const`.
#define KD_DB_DIM_ACCESSORS KD_DIM_VARIABLES(KD_DIM_ACCESSOR)
