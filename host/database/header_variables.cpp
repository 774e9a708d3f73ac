#include <database/header_variables.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <numbers>
#include <utility>

#include <database/dimension_variables.h>

namespace {

constexpr double kEmptyExtent = 1e20;
constexpr double kQuarterTurn = std::numbers::pi / 2.0;

constexpr KdGePoint3d kNowhere{0.0, 0.0, 0.0};
constexpr KdGePoint3d kAlongX{1.0, 0.0, 0.0};
constexpr KdGePoint3d kAlongY{0.0, 1.0, 0.0};
constexpr KdGePoint3d kAlongZ{0.0, 0.0, 1.0};
constexpr KdGePoint3d kEmptyMinimum{kEmptyExtent, kEmptyExtent, kEmptyExtent};
constexpr KdGePoint3d kEmptyMaximum{-kEmptyExtent, -kEmptyExtent, -kEmptyExtent};
constexpr KdGePoint3d kSmallSheet{12.0, 9.0, 0.0};

constexpr int headerGroup(KdDbDimKind kind)
{
    switch (kind) {
    case KdDbDimKind::Real:
    case KdDbDimKind::Angle:
        return 40;
    case KdDbDimKind::Text:
    case KdDbDimKind::Block: // by the arrow's name
        return 1;
    case KdDbDimKind::TextStyle:
        return 7;
    case KdDbDimKind::Linetype:
        return 6;
    default:
        return 70;
    }
}

#define KD_DIM_HEADER_ROW(accessor, NAME, code, kind, initial)                                     \
    {L"" #NAME, headerGroup(KdDbDimKind::kind), initial},

// What belongs to the file and not to the drawing (its version, code page and next handle) is left
// to readers and writers.
std::span<const KdDbHeaderVariable> table()
{
    // clang-format off
    static const KdDbHeaderVariable rows[] = {
        // Units
        {L"LUNITS", 70, 2}, {L"LUPREC", 70, 4}, {L"AUNITS", 70, 0}, {L"AUPREC", 70, 0},
        {L"ANGBASE", 50, 0.0}, {L"ANGDIR", 70, 0}, {L"UNITMODE", 70, 0}, {L"INSUNITS", 70, 0},
        {L"MEASUREMENT", 70, 0},

        // What new entities get
        {L"CLAYER", 8, L"0"}, {L"CELTYPE", 6, L"ByLayer"}, {L"CECOLOR", 62, 256},
        {L"CELTSCALE", 40, 1.0}, {L"CELWEIGHT", 370, -1},
        {L"CEPSNTYPE", 380, 0}, {L"CEPSNID", 390, L""},
        {L"TEXTSTYLE", 7, L"Standard"}, {L"DIMSTYLE", 2, L"Standard"},
        {L"CMLSTYLE", 2, L"Standard"}, {L"CMLJUST", 70, 0}, {L"CMLSCALE", 40, 1.0},
        {L"TEXTSIZE", 40, 0.2}, {L"TRACEWID", 40, 0.05}, {L"SKETCHINC", 40, 0.1},
        {L"FILLETRAD", 40, 0.0}, {L"THICKNESS", 40, 0.0}, {L"ELEVATION", 40, 0.0},
        {L"PELEVATION", 40, 0.0}, {L"PLINEWID", 40, 0.0}, {L"PLINEGEN", 70, 0},
        {L"CHAMFERA", 40, 0.0}, {L"CHAMFERB", 40, 0.0}, {L"CHAMFERC", 40, 0.0},
        {L"CHAMFERD", 40, 0.0}, {L"SKPOLY", 70, 0}, {L"CSHADOW", 280, 0},
        {L"PSTYLEMODE", 290, 1}, {L"ENDCAPS", 280, 0}, {L"JOINSTYLE", 280, 0},
        {L"PSVPSCALE", 40, 0.0},

        // How the drawing is shown
        {L"TILEMODE", 70, 1}, {L"LTSCALE", 40, 1.0}, {L"PSLTSCALE", 70, 1},
        {L"LWDISPLAY", 290, 0}, {L"ATTMODE", 70, 1}, {L"FILLMODE", 70, 1}, {L"QTEXTMODE", 70, 0},
        {L"MIRRTEXT", 70, 0}, {L"ORTHOMODE", 70, 0}, {L"REGENMODE", 70, 1}, {L"PDMODE", 70, 0},
        {L"PDSIZE", 40, 0.0}, {L"SPLFRAME", 70, 0}, {L"SPLINETYPE", 70, 6},
        {L"SPLINESEGS", 70, 8}, {L"SURFTAB1", 70, 6}, {L"SURFTAB2", 70, 6}, {L"SURFTYPE", 70, 6},
        {L"SURFU", 70, 6}, {L"SURFV", 70, 6}, {L"SHADEDGE", 70, 3}, {L"SHADEDIF", 70, 70},
        {L"DISPSILH", 70, 0}, {L"WORLDVIEW", 70, 1}, {L"VISRETAIN", 70, 1},
        {L"MAXACTVP", 70, 64}, {L"PROXYGRAPHICS", 70, 1}, {L"TREEDEPTH", 70, 3020},
        {L"SORTENTS", 280, 127}, {L"INDEXCTL", 280, 0}, {L"HIDETEXT", 280, 1},
        {L"HALOGAP", 280, 0}, {L"OBSCOLOR", 70, 257}, {L"OBSLTYPE", 280, 0},
        {L"INTERSECTIONCOLOR", 70, 257}, {L"INTERSECTIONDISPLAY", 280, 0},
        {L"INTERFERECOLOR", 62, 1}, {L"XCLIPFRAME", 280, 2}, {L"DWFFRAME", 280, 2},
        {L"DGNFRAME", 280, 0}, {L"CAMERADISPLAY", 290, 0}, {L"CAMERAHEIGHT", 40, 0.0},
        {L"LENSLENGTH", 40, 50.0}, {L"LIGHTGLYPHDISPLAY", 280, 1},
        {L"TILEMODELIGHTSYNCH", 280, 1}, {L"SHADOWPLANELOCATION", 40, 0.0},
        {L"REALWORLDSCALE", 290, 1}, {L"SHOWHIST", 280, 1}, {L"SOLIDHIST", 280, 0},
        {L"STEPSPERSEC", 40, 2.0}, {L"STEPSIZE", 40, 6.0}, {L"3DDWFPREC", 40, 2.0},

        // Solids from curves
        {L"LOFTANG1", 40, kQuarterTurn}, {L"LOFTANG2", 40, kQuarterTurn},
        {L"LOFTMAG1", 40, 0.0}, {L"LOFTMAG2", 40, 0.0}, {L"LOFTNORMALS", 280, 1},
        {L"LOFTPARAM", 70, 7}, {L"PSOLWIDTH", 40, 0.25}, {L"PSOLHEIGHT", 40, 4.0},

        // Extents and limits of the model and of the sheet
        {L"INSBASE", 10, kNowhere}, {L"PINSBASE", 10, kNowhere},
        {L"EXTMIN", 10, kEmptyMinimum},
        {L"EXTMAX", 10, kEmptyMaximum},
        {L"PEXTMIN", 10, kEmptyMinimum},
        {L"PEXTMAX", 10, kEmptyMaximum},
        {L"LIMMIN", 10, kNowhere}, {L"LIMMAX", 10, kSmallSheet},
        {L"PLIMMIN", 10, kNowhere}, {L"PLIMMAX", 10, kSmallSheet},
        {L"LIMCHECK", 70, 0}, {L"PLIMCHECK", 70, 0},

        // User coordinate systems of the model and of the sheet, in world coordinates
        {L"UCSNAME", 2, L""}, {L"UCSBASE", 2, L""}, {L"UCSORG", 10, kNowhere},
        {L"UCSXDIR", 10, kAlongX}, {L"UCSYDIR", 10, kAlongY}, {L"UCSORTHOREF", 2, L""},
        {L"UCSORTHOVIEW", 70, 0}, {L"UCSORGTOP", 10, kNowhere}, {L"UCSORGBOTTOM", 10, kNowhere},
        {L"UCSORGLEFT", 10, kNowhere}, {L"UCSORGRIGHT", 10, kNowhere},
        {L"UCSORGFRONT", 10, kNowhere}, {L"UCSORGBACK", 10, kNowhere},
        {L"PUCSNAME", 2, L""}, {L"PUCSBASE", 2, L""}, {L"PUCSORG", 10, kNowhere},
        {L"PUCSXDIR", 10, kAlongX}, {L"PUCSYDIR", 10, kAlongY}, {L"PUCSORTHOREF", 2, L""},
        {L"PUCSORTHOVIEW", 70, 0}, {L"PUCSORGTOP", 10, kNowhere},
        {L"PUCSORGBOTTOM", 10, kNowhere}, {L"PUCSORGLEFT", 10, kNowhere},
        {L"PUCSORGRIGHT", 10, kNowhere}, {L"PUCSORGFRONT", 10, kNowhere},
        {L"PUCSORGBACK", 10, kNowhere},

        // Dimensions: the current value of each variable that styles hold, and what styles do not
        KD_DIM_VARIABLES(KD_DIM_HEADER_ROW)
        {L"DIMASSOC", 280, 2}, {L"DIMASO", 70, 1}, {L"DIMSHO", 70, 1},

        // Where and when; dates are Julian days, durations days
        {L"LATITUDE", 40, 37.795}, {L"LONGITUDE", 40, -122.394}, {L"NORTHDIRECTION", 40, 0.0},
        {L"TIMEZONE", 70, -8000}, {L"TDCREATE", 40, 0.0}, {L"TDUCREATE", 40, 0.0},
        {L"TDUPDATE", 40, 0.0}, {L"TDUUPDATE", 40, 0.0}, {L"TDINDWG", 40, 0.0},
        {L"TDUSRTIMER", 40, 0.0}, {L"USRTIMER", 70, 1}, {L"LASTSAVEDBY", 1, L""},

        // Input; host programs of today keep these for themselves, drawings of old versions do not
        {L"ATTDIA", 70, 1}, {L"ATTREQ", 70, 1}, {L"BLIPMODE", 70, 0}, {L"COORDS", 70, 1},
        {L"DELOBJ", 70, 1}, {L"DRAGMODE", 70, 2}, {L"OSMODE", 70, 0}, {L"PICKSTYLE", 70, 1},
        {L"AXISMODE", 70, 0}, {L"AXISUNIT", 10, kNowhere}, {L"GRIDMODE", 70, 0},
        {L"GRIDUNIT", 10, kNowhere}, {L"SNAPMODE", 70, 0}, {L"SNAPUNIT", 10, kNowhere},
        {L"SNAPBASE", 10, kNowhere}, {L"SNAPANG", 50, 0.0}, {L"SNAPSTYLE", 70, 0},
        {L"SNAPISOPAIR", 70, 0}, {L"FASTZOOM", 70, 1}, {L"VIEWCTR", 10, kNowhere},
        {L"VIEWDIR", 10, kAlongZ}, {L"VIEWSIZE", 40, 1.0}, {L"SAVEIMAGES", 70, 0},

        // Handles of what is current
        {L"CMATERIAL", 347, L""}, {L"INTERFEREOBJVS", 345, L""}, {L"INTERFEREVPVS", 346, L""},

        // The rest
        {L"FINGERPRINTGUID", 2, L""}, {L"VERSIONGUID", 2, L""},
        {L"HYPERLINKBASE", 1, L""}, {L"STYLESHEET", 1, L""}, {L"PROJECTNAME", 1, L""},
        {L"MENU", 1, L"."}, {L"XEDIT", 290, 1}, {L"EXTNAMES", 290, 1}, {L"OLESTARTUP", 290, 0},
        {L"USERI1", 70, 0}, {L"USERI2", 70, 0}, {L"USERI3", 70, 0}, {L"USERI4", 70, 0},
        {L"USERI5", 70, 0}, {L"USERR1", 40, 0.0}, {L"USERR2", 40, 0.0}, {L"USERR3", 40, 0.0},
        {L"USERR4", 40, 0.0}, {L"USERR5", 40, 0.0},
    };
    // clang-format on
    return rows;
}

constexpr wchar_t upperAscii(wchar_t character)
{
    return character >= L'a' && character <= L'z' ? character - (L'a' - L'A') : character;
}

/// Finds the number of a variable by its name. A property comparison looks a variable up for every
/// entity, so the name is hashed as it stands, without a copy in upper case.
class NameIndex
{
  public:
    explicit NameIndex(std::span<const KdDbHeaderVariable> rows) : m_rows(rows)
    {
        m_places.fill(-1);
        assert(rows.size() * 2 < m_places.size());
        for (std::size_t number = 0; number < rows.size(); ++number) {
            const std::wstring_view name = rows[number].name;
            m_longest = std::max(m_longest, name.size());
            std::size_t place = placeOf(name);
            while (m_places[place] >= 0)
                place = next(place);
            m_places[place] = static_cast<std::int16_t>(number);
        }
    }

    int find(std::wstring_view name) const
    {
        if (name.size() > m_longest)
            return -1;
        std::size_t place = placeOf(name);
        while (m_places[place] >= 0 && !isNamed(m_places[place], name))
            place = next(place);
        return m_places[place];
    }

  private:
    static constexpr unsigned kPlacesBits = 10;
    static constexpr std::size_t kPlaces = std::size_t{1} << kPlacesBits;

    static std::size_t next(std::size_t place) { return (place + 1) % kPlaces; }

    // The length and four of the characters tell the names well enough apart; the sum can be worked
    // out without waiting for one character after the other.
    static std::size_t placeOf(std::wstring_view name)
    {
        const std::size_t length = name.size();
        if (length == 0)
            return 0;
        const auto at = [name](std::size_t index) {
            return static_cast<std::uint32_t>(upperAscii(name[index]));
        };
        const std::uint32_t sum = at(0) * 0x9E3779B1u + at(length / 2) * 0x85EBCA77u +
                                  at(length - 1) * 0xC2B2AE3Du +
                                  at(length - std::min<std::size_t>(length, 2)) * 0x27D4EB2Fu +
                                  static_cast<std::uint32_t>(length) * 0x165667B1u;
        return sum >> (32 - kPlacesBits);
    }

    bool isNamed(std::int16_t number, std::wstring_view name) const
    {
        const wchar_t* known = m_rows[static_cast<std::size_t>(number)].name;
        for (const wchar_t character : name)
            if (*known == L'\0' || *known++ != upperAscii(character))
                return false;
        return *known == L'\0';
    }

    std::span<const KdDbHeaderVariable> m_rows;
    std::array<std::int16_t, kPlaces> m_places;
    std::size_t m_longest = 0;
};

template <class T>
const T& valueOfKind(const KdDbHeaderVariables& variables, std::wstring_view name)
{
    const int index = KdDbHeaderVariables::indexOf(name);
    assert(index >= 0);
    return std::get<T>(variables.value(index));
}

} // namespace

std::span<const KdDbHeaderVariable> KdDbHeaderVariables::all()
{
    static const std::span<const KdDbHeaderVariable> rows = table();
    return rows;
}

int KdDbHeaderVariables::indexOf(std::wstring_view name)
{
    static const NameIndex index(all());
    return index.find(name);
}

KdDbHeaderVariables::KdDbHeaderVariables()
{
    m_values.reserve(all().size());
    for (const KdDbHeaderVariable& variable : all())
        m_values.push_back(variable.initial);
}

bool KdDbHeaderVariables::setValue(int index, KdDbHeaderValue value)
{
    if (index < 0 || index >= static_cast<int>(m_values.size()))
        return false;
    KdDbHeaderValue& current = m_values[static_cast<std::size_t>(index)];
    if (current.index() != value.index())
        return false;
    current = std::move(value);
    return true;
}

std::int32_t KdDbHeaderVariables::integer(std::wstring_view name) const
{
    return valueOfKind<std::int32_t>(*this, name);
}

double KdDbHeaderVariables::real(std::wstring_view name) const
{
    return valueOfKind<double>(*this, name);
}

const KdString& KdDbHeaderVariables::text(std::wstring_view name) const
{
    return valueOfKind<KdString>(*this, name);
}

const KdGePoint3d& KdDbHeaderVariables::point(std::wstring_view name) const
{
    return valueOfKind<KdGePoint3d>(*this, name);
}
