#include "support.h"

#include <optional>
#include <sstream>

#include <command/registration.h>
#include <entities/text.h>
#include <plugin/entity_pe.h>
#include <values/value_chain.h>

using namespace command_test;

namespace {

/// All that a record can tell.
std::string told(const ResBuf& record)
{
    std::ostringstream text;
    const KdGePoint3d& point = record.getPoint3d();
    text << record.restype() << ' ' << record.getDouble() << ' ' << record.getInt32() << ' '
         << record.getBool() << ' ' << point.x << ' ' << point.y << ' ' << point.z << ' '
         << record.getPoint2d().x << ' ' << record.getColor().color();
    for (const wchar_t character : record.getString().view())
        text << ' ' << static_cast<long>(character);
    return text.str();
}

class LastingRows : public CommandTest
{
  protected:
    /// An entity of the class in the model; null for an abstract class.
    KdDbEntity* make(const KdRxClass& rxClass)
    {
        auto* entity = static_cast<KdDbEntity*>(rxClass.create());
        KdDbBlockTableRecord* space = nullptr;
        EXPECT_EQ(kddbOpenObject(space, model(), KdDb::kForWrite), eOk);
        if (entity) {
            EXPECT_EQ(space->appendEntity(entity), eOk);
        }
        space->close();
        return entity;
    }
};

std::string asked(KdDbEntityPE& provider, const KdDbEntity& entity, const KdString& key)
{
    ValueChain chain;
    provider.PropertyValueGet(&entity, key, chain.head(), false, false);
    return told(*chain.head());
}

std::string readBy(const PropertyRow* row, const KdDbEntity& entity)
{
    ValueChain chain;
    if (row)
        row->read({entity, *chain.head(), false, false}, row->kind);
    return told(*chain.head());
}

TEST_F(LastingRows, GiveWhatTheProvidersAnswer)
{
    int known = 0;
    for (const Registration& registration : registrations()) {
        const KdRxClass& rxClass = *registration.hostClass();
        const KdDbEntity* entity = make(rxClass);
        if (!entity)
            continue;
        KdArray<KdString> keys;
        KdArray<bool> flags;
        registration.provider->PropertyCount(entity, keys, flags);
        keys.append(L"Geometry:Flavour");
        for (int i = 0; i < keys.length(); ++i) {
            const LastingRow row = lastingRow(*registration.provider, rxClass, keys[i]);
            known += row.has_value();
            if (row) {
                EXPECT_EQ(readBy(*row, *entity), asked(*registration.provider, *entity, keys[i]))
                    << testing::PrintToString(rxClass.name()) << " number " << i;
            }
        }
    }
    EXPECT_GT(known, 500);
}

TEST_F(LastingRows, GiveWhatTheProvidersAnswerForEntitiesOfOtherClassesToo)
{
    const KdDbEntity* const line = make(*KdDbLine::desc());
    const KdDbEntity* const text = make(*KdDbText::desc());
    int known = 0;
    for (const Registration& registration : registrations()) {
        const KdDbEntity* other = line->isKindOf(registration.hostClass()) ? text : line;
        if (other->isKindOf(registration.hostClass()))
            continue; // it serves them all
        KdArray<KdString> keys;
        KdArray<bool> flags;
        registration.provider->PropertyCount(make(*registration.hostClass()), keys, flags);
        keys.append(kLayerKey);
        for (int i = 0; i < keys.length(); ++i) {
            const LastingRow row = lastingRow(*registration.provider, *other->isA(), keys[i]);
            known += row.has_value();
            if (row) {
                EXPECT_EQ(readBy(*row, *other), asked(*registration.provider, *other, keys[i]))
                    << testing::PrintToString(registration.hostClass()->name()) << " number " << i;
            }
        }
    }
    EXPECT_GT(known, 500);
}

TEST_F(LastingRows, AreNotKnownOfAProviderOfSomebodyElse)
{
    class Foreign : public KdDbEntityPE
    {
    } foreign;
    EXPECT_EQ(lastingRow(foreign, *KdDbLine::desc(), kLayerKey), std::nullopt);
}

} // namespace
