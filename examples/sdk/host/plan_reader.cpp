#include "plan_reader.h"

#include <map>
#include <sstream>
#include <string>

#include <database/database.h>
#include <database/tables.h>
#include <entities/circle.h>
#include <entities/line.h>

namespace {

std::istream& operator>>(std::istream& words, KdGePoint3d& point)
{
    return words >> point.x >> point.y >> point.z;
}

void readLine(std::istream& words, EntityMembers& members)
{
    auto& line = static_cast<LineMembers&>(members);
    words >> line.start >> line.end;
}

void readCircle(std::istream& words, EntityMembers& members)
{
    auto& circle = static_cast<CircleMembers&>(members);
    words >> circle.center >> circle.radius;
}

/// A kind of entity: its class, and what fills the record of data of that class.
struct Kind
{
    KdRxClass* (*rxClass)();
    void (*read)(std::istream& words, EntityMembers& members);
};

const std::map<std::string, Kind> kKinds = {
    {"circle", {KdDbCircle::desc, readCircle}},
    {"line", {KdDbLine::desc, readLine}},
};

class PlanReader
{
  public:
    explicit PlanReader(KdDbDatabase& drawing)
        : m_builder(drawing),
          m_layer(drawing.findOrAddRecord<KdDbLayerTable>(L"0")),
          m_modelId(drawing.modelSpaceId())
    {
        kddbOpenObject(m_model, m_modelId, KdDb::kForWrite);
    }
    ~PlanReader() { m_model->close(); }
    PlanReader(const PlanReader&) = delete;
    PlanReader& operator=(const PlanReader&) = delete;

    /// False if the words are no entity.
    bool add(std::istream& words)
    {
        std::string name;
        KdDbHandle handle = 0;
        words >> name >> std::hex >> handle;
        const auto kind = kKinds.find(name);
        if (!words || kind == kKinds.end())
            return false;
        auto& entity = static_cast<KdDbEntity&>(
            *m_builder.make(kind->second.rxClass(), handle, SourceRange{}));
        kind->second.read(words, static_cast<EntityMembers&>(m_builder.membersForFilling(entity)));
        if (!words)
            return false;
        entity.setLayer(m_layer);
        m_builder.setOwner(entity, m_modelId);
        m_model->adopt(entity.objectId());
        return true;
    }

  private:
    KdDbDatabaseBuilder m_builder;
    KdDbObjectId m_layer;
    KdDbObjectId m_modelId;
    KdDbBlockTableRecord* m_model = nullptr;
};

} // namespace

int readPlan(std::istream& plan, KdDbDatabase& drawing)
{
    PlanReader reader(drawing);
    std::string line;
    for (int number = 1; std::getline(plan, line); ++number) {
        std::istringstream words(line);
        if (!line.empty() && !reader.add(words))
            return number;
    }
    return 0;
}
