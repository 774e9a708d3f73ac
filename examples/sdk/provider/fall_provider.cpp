/// Gives lines two properties that drainage asks for: the fall in percent, and which way it goes.
/// A host loads this library behind the quick-select module, attaches the provider after
/// `QSelectInit`, and detaches it before `QSelectUnInit`.
#include <cmath>
#include <optional>
#include <utility>

#include <entities/line.h>
#include <plugin/entity_pe.h>

namespace {

constexpr const wchar_t* kFallKey = L"Drainage:Fall";
constexpr const wchar_t* kCourseKey = L"Drainage:Course";
constexpr const wchar_t* kCourses[] = {L"level", L"falling", L"rising"};

double drop(const KdDbLine& line)
{
    return line.startPoint().z - line.endPoint().z;
}

/// In percent of the way as it looks from above; below 0 for a line that rises from its start to
/// its end. Nothing for a vertical line.
std::optional<double> fall(const KdDbLine& line)
{
    const KdGeVector3d way = line.endPoint() - line.startPoint();
    const double run = std::hypot(way.x, way.y);
    return run > 0.0 ? std::optional(drop(line) / run * 100.0) : std::nullopt;
}

/// Stands before the provider that lines have had so far and asks it for all other properties.
class FallProvider : public KdDbEntity_Extension
{
  public:
    /// False if the module is not initialised, so that there is nobody to ask.
    bool attach()
    {
        KdRxClass* protocol = KdDbEntityPE::desc();
        KdRxObject* former = protocol ? KdDbLine::desc()->queryX(protocol) : nullptr;
        if (!former)
            return false;
        m_former = static_cast<KdDbEntityPE*>(former);
        m_replaced = KdDbLine::desc()->addX(protocol, this);
        return true;
    }

    void detach()
    {
        KdRxClass* protocol = KdDbEntityPE::desc();
        KdDbLine::desc()->delX(protocol);
        if (m_replaced)
            KdDbLine::desc()->addX(protocol, m_replaced);
    }

    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override
    {
        const int status = m_former->PropertyCount(entity, names, flags);
        for (const wchar_t* key : {kFallKey, kCourseKey}) {
            names.append(KdString(key));
            flags.append(true); // both follow from the ends of the line
        }
        return status;
    }

    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override
    {
        if (!entity || !entity->isKindOf(KdDbLine::desc()))
            return 0;
        const auto& line = static_cast<const KdDbLine&>(*entity);
        if (name == kFallKey)
            return readFall(line, *result);
        if (name == kCourseKey)
            return readCourse(line, *result, withChoices);
        return m_former->PropertyValueGet(entity, std::move(name), result, asDisplayText,
                                          withChoices);
    }

  private:
    static int readFall(const KdDbLine& line, ResBuf& result)
    {
        const std::optional<double> percent = fall(line);
        if (!percent)
            return 0; // the line has no such value; comparisons read the empty record as 0
        result.setRestype(ResBuf::kReal);
        result.setDouble(*percent);
        return 1;
    }

    static int readCourse(const KdDbLine& line, ResBuf& result, bool withChoices)
    {
        const double height = drop(line);
        result.setRestype(ResBuf::kString);
        result.setString(KdString(kCourses[height == 0.0 ? 0 : height > 0.0 ? 1 : 2]));
        if (withChoices) {
            ResBuf* tail = &result;
            for (const wchar_t* course : kCourses)
                tail = tail->setNext(ResBuf::newRb(ResBuf::kString, course));
        }
        return 1;
    }

    KdDbEntityPE* m_former = nullptr;
    /// What lines had of their own; null if they inherited it.
    KdRxObject* m_replaced = nullptr;
};

FallProvider g_provider;

} // namespace

extern "C" KW_EXPORT bool attachProvider()
{
    return g_provider.attach();
}

extern "C" KW_EXPORT void detachProvider()
{
    g_provider.detach();
}
