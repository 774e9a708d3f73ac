#include <entities/image.h>

#include <editor/insert_units.h>

#include <database/database.h>

#include <providers/other_providers.h>
#include <providers/row_readers.h>

namespace {

struct Orientation
{
    explicit Orientation(const KdDbRasterImage& image) { image.getOrientation(origin, u, v); }

    KdGePoint3d origin;
    KdGeVector3d u;
    KdGeVector3d v;
};

KdGePoint3d originOf(const KdDbRasterImage& image)
{
    return Orientation(image).origin;
}

double rotation(const KdDbRasterImage& image)
{
    return Orientation(image).u.angleTo(KdGeVector3d::kXAxis);
}

double width(const KdDbRasterImage& image)
{
    return Orientation(image).u.length();
}

double height(const KdDbRasterImage& image)
{
    return Orientation(image).v.length();
}

/// The key of the image's definition.
KdString imageName(const KdDbRasterImage& image)
{
    KdString name;
    const OpenForRead<KdDbRasterImageDef> definition(image.imageDefId());
    if (!definition || !image.database())
        return name;
    const OpenForRead<KdDbDictionary> images(
        KdDbRasterImageDef::imageDictionary(*image.database()));
    if (images)
        images->nameAt(image.imageDefId(), name);
    return name;
}

KdString path(const KdDbRasterImage& image)
{
    const OpenForRead<KdDbRasterImageDef> definition(image.imageDefId());
    return definition ? definition->sourceFileName() : KdString();
}

template <KdDbRasterImage::ImageDisplayOpt Option>
bool isSet(const KdDbRasterImage& image)
{
    return image.isSetDisplayOpt(Option);
}

/// Drawing units in one unit of the definition's pixel size. A drawing without a unit, or with one
/// beyond those known, takes the pixels as they are.
double unitsOfPixelSize(const KdDbRasterImageDef& definition, const KdDbDatabase& database)
{
    double factor = 1.0;
    if (definition.resolutionUnits() != RasterImageDefMembers::ResolutionUnit::None) {
        const int unit = database.header().integer(L"INSUNITS");
        kddbGetUnitsConversion(kInsertUnitMillimeters, unit, factor);
    }
    return factor;
}

double related(double length, double naturalLength)
{
    return naturalLength > 0.0 ? length / naturalLength : length;
}

double scale(const KdDbRasterImage& image)
{
    KdGeVector2d scale;
    KdDbRasterImage_Extension::GetScale(const_cast<KdDbRasterImage*>(&image), scale);
    return scale.x;
}

// The double colons are letters of the keys.
// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                   read-only  kind              value                                   choices
    {{77474, L"Image adjustment::Brightness"}, editable,  ResBuf::kInt8,    value<&KdDbRasterImage::brightness>},
    {{77475, L"Image adjustment::Contrast"},   editable,  ResBuf::kInt8,    value<&KdDbRasterImage::contrast>},
    {{77476, L"Image adjustment::Fade"},       editable,  ResBuf::kInt8,    value<&KdDbRasterImage::fade>},
    {{77477, L"Geometry:Position"},            editable,  ResBuf::kPoint3d, value<originOf>},
    {{77478, L"Geometry:Rotation"},            editable,  ResBuf::kAngle,   value<rotation>},
    {{77479, L"Geometry:Width"},               editable,  ResBuf::kReal,    value<width>},
    {{77480, L"Geometry:Height"},              editable,  ResBuf::kReal,    value<height>},
    {{77481, L"Geometry:Scale"},               editable,  ResBuf::kReal,    value<scale>},
    {{77482, L"Misc::Name"},                   derived,   ResBuf::kString,  value<imageName>},
    {{77483, L"Misc::Path"},                   editable,  ResBuf::kString,  value<path>,                            tag<2>},
    {{77484, L"Misc::Show image"},             editable,  ResBuf::kBool,    value<isSet<KdDbRasterImage::kShow>>},
    {{77485, L"Misc::Clipping"},               editable,  ResBuf::kBool,    value<isSet<KdDbRasterImage::kClip>>},
    {{77486, L"Misc::Transparency"},           editable,  ResBuf::kBool,    value<isSet<KdDbRasterImage::kTransparent>>},
};
// clang-format on

// Name and path, which a wipeout does not have.
constexpr std::size_t kFileRows = 2;
constexpr std::size_t kRowsBeforeFile = 8;
static_assert(kRows[kRowsBeforeFile].key.id == 77482);

} // namespace

std::span<const PropertyRow> KdDbRasterImage_Extension::rows()
{
    return kRows;
}

void KdDbRasterImage_Extension::GetScale(KdDbRasterImage* image, KdGeVector2d& scale)
{
    const Orientation lies(*image);
    scale = {lies.u.length(), lies.v.length()};
    const OpenForRead<KdDbRasterImageDef> definition(image->imageDefId());
    if (!definition || !image->database())
        return;
    const double units = unitsOfPixelSize(*definition, *image->database());
    const KdGeVector2d pixel = definition->resolutionMMPerPixel();
    scale = {related(scale.x, definition->size().x * pixel.x * units),
             related(scale.y, definition->size().y * pixel.y * units)};
}

int KdDbWipeout_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                         KdArray<bool>& flags)
{
    const std::span<const PropertyRow> all(kRows);
    const int status = KdDbEntity_Extension::PropertyCount(entity, names, flags);
    listRows(all.first(kRowsBeforeFile), entity, names, flags);
    listRows(all.subspan(kRowsBeforeFile + kFileRows), entity, names, flags);
    return status;
}
