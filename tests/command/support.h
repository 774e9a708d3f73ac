/// What the tests of the command share: a drawing to run over, and what a run leaves behind.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>
#include <editor/command_line.h>
#include <editor/selection_sets.h>
#include <entities/circle.h>
#include <entities/line.h>
#include <platform/main_app_service.h>

#include <command/filter_source.h>
#include <command/resource_scope.h>
#include <support/messages.h>

namespace command_test {

using Ids = std::vector<KdDbObjectId>;
using Entities = std::vector<KdDbEntity*>;

constexpr const wchar_t* kLayerKey = L"\tGeneral:Layer";
constexpr const wchar_t* kColorKey = L"\tGeneral:Color";

/// A kind of entity that nothing has a display name for.
class NamelessEntity : public KdDbEntity
{
    KD_RX_DECLARE(NamelessEntity)
};

/// Answers with a filter that was made before, and notes what it was asked with.
class MadeFilter : public FilterSource
{
  public:
    MadeFilter() = default;
    ~MadeFilter() override { ResBuf::relRb(parameters.filter); }

    /// Entities whose layer compares with `layer` as `operatorText` says.
    MadeFilter& layer(const wchar_t* operatorText, const wchar_t* layer);
    /// Any property, compared as a text.
    MadeFilter& property(const wchar_t* key, const wchar_t* operatorText, const wchar_t* text);
    /// Entities of one type.
    MadeFilter& type(const wchar_t* displayName, const wchar_t* className);
    MadeFilter& overStart();
    MadeFilter& overPicked(Entities entities);
    MadeFilter& exclude();
    MadeFilter& append();
    MadeFilter& cancelling();

    bool ask(const Candidates& candidates, FilterChoice& choice) override;

    DialogParameters parameters;
    Entities picked;
    int asked = 0;
    Entities drawingTypes;
    Entities selectionTypes;
    std::function<void(const Candidates&)> whenAsked;
    bool isForeseen = true; ///< by a preview

  private:
    bool m_cancels = false;
};

/// A selection set of the test's own, freed at the end of its scope.
class GivenSet
{
  public:
    explicit GivenSet(const Ids& members = {});
    ~GivenSet() { EXPECT_EQ(kdedSSFree(name), RTNORM); }
    GivenSet(const GivenSet&) = delete;
    GivenSet& operator=(const GivenSet&) = delete;

    Ids members() const;

    kds_name name{};
};

void erase(KdDbObjectId id);

/// A standard drawing that is the working one, with the module initialised and its texts current.
/// Whatever a test does, nothing may stay open, and no set, record or message may be left over.
class CommandTest : public testing::Test
{
  protected:
    CommandTest();
    ~CommandTest() override;
    void TearDown() override;

    KdDbObjectId model() const { return drawing.modelSpaceId(); }
    KdDbObjectId sheet() const { return drawing.activeSheetId(); }

    template <class Entity = KdDbLine>
    Entity* add(KdDbObjectId block)
    {
        auto* entity = new Entity;
        append(entity, block);
        return entity;
    }
    /// In the model, on a layer that is made when the drawing lacks it.
    template <class Entity = KdDbLine>
    Entity* addOn(const wchar_t* layer)
    {
        auto* entity = new Entity;
        entity->setLayer(drawing.findOrAddRecord<KdDbLayerTable>(layer));
        append(entity, model());
        return entity;
    }
    KdDbBlockTableRecord* addBlock(const wchar_t* name)
    {
        return drawing.addRecord<KdDbBlockTable>(name);
    }
    void freeze(const wchar_t* layer);

    /// The drawing shows the sheet; with `viewport` 1 the user works on the sheet itself.
    void showSheet(short viewport);
    static int setShort(const wchar_t* variable, short value);

    /// What the user has selected.
    static void select(const Ids& ids);
    static Ids selection();

    /// One whole run, which a preview is held against; the number that it tells, or -1 when it did
    /// not come to an end.
    int run(MadeFilter& filter, long* ss = nullptr);

    KdDbDatabase drawing;
    std::vector<std::wstring> printed;
    Messages messages;

  private:
    void append(KdDbEntity* entity, KdDbObjectId block);

    ResourceScope m_resources;
    KdutPrintSink m_previousSink;
    long m_setsBefore = kdedSelectionSetsInUse();
    long long m_recordsBefore = ResBuf::recordsInUse();
};

} // namespace command_test
