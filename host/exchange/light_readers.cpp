// Lights.
#include <entities/light.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

// clang-format off
constexpr FieldRow<LightMembers> kFields[] = {
    {1, field<&LightMembers::name>},
    {10, field<&LightMembers::position>},
    {11, field<&LightMembers::target>},
    {40, field<&LightMembers::intensity>},
    {50, [](RecordReader& reader, LightMembers& light) { light.hotspotAngle = reader.angle(); }},
    {51, [](RecordReader& reader, LightMembers& light) { light.falloffAngle = reader.angle(); }},
    {70, field<&LightMembers::type>},
    {290, field<&LightMembers::on>},
};
// clang-format on

/// The colour is an index, then perhaps true; in old drawings it is a whole word, under the code
/// under which the version of the record stands first.
class LightColor
{
  public:
    explicit LightColor(LightMembers& light) : m_light(light) {}

    void take(RecordReader& reader)
    {
        if (reader.code() == 63 && !m_isTrue) {
            m_light.lightColor = colorWordOfIndex(reader.integer());
        } else if (reader.code() == 421) {
            m_light.lightColor = colorWordOfRgb(reader.integer());
            m_isTrue = true;
        } else if (reader.code() == 90) {
            if (m_hasVersion)
                m_light.lightColor = static_cast<std::uint32_t>(reader.integer());
            m_hasVersion = true;
        }
    }

  private:
    LightMembers& m_light;
    bool m_hasVersion = false;
    bool m_isTrue = false;
};

void readLight(RecordReader& reader, LightMembers& light)
{
    LightColor color(light);
    while (reader.next()) {
        if (!takeField(kFields, reader, light))
            color.take(reader);
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbLight, LightMembers, readLight>(),
};

} // namespace

std::span<const MemberReaderRow> lightReaders()
{
    return kRows;
}

} // namespace dxf
