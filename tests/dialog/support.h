/// What the tests of the dialog share: a drawing, entities with made-up properties, and a person
/// who uses the dialog with keys and mouse.
#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>
#include <editor/selection_sets.h>
#include <plugin/entity_pe.h>

#include <command/resource_scope.h>
#include <dialog/qselect_dialog.h>
#include <support/messages.h>

namespace dialog_test {

using Entities = std::vector<KdDbEntity*>;
using Ids = std::vector<KdDbObjectId>;

/// Gives a record its kind and value.
using Fill = std::function<void(ResBuf& record)>;
Fill real(double value, int kind = ResBuf::kReal);
Fill integer(int value, int kind = ResBuf::kInt32);
Fill text(const wchar_t* value, int kind = ResBuf::kString);
Fill truth(bool value);
Fill point(double x, double y);
Fill point(double x, double y, double z);
Fill color(int index);
Fill nothing();

struct ToyProperty
{
    std::wstring key;
    Fill value;
    std::vector<Fill> behind = {}; ///< records behind the head, when choices are asked for
};

/// Answers with the properties that it was given.
class ToyEntity : public KdDbEntity
{
    KD_RX_DECLARE(ToyEntity)
  public:
    std::vector<ToyProperty> properties;
};
/// The same with another name.
class OtherToy : public ToyEntity
{
    KD_RX_DECLARE(OtherToy)
};
/// An entity that nothing answers for: the general provider is not attached in these tests.
class Unprovided : public KdDbEntity
{
    KD_RX_DECLARE(Unprovided)
};

/// What toys are called: they have no display name, so the name in drawing files stands in.
constexpr const wchar_t* kToy = L"TOY";
constexpr const wchar_t* kOtherToy = L"OTHERTOY";

/// Uses a dialog as a person does.
class Person
{
  public:
    explicit Person(QDialog& dialog) : m_dialog(dialog) {}

    template <class Widget = QWidget>
    Widget& find(const char* name)
    {
        auto* found = m_dialog.findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    QDialog& dialog() { return m_dialog; }

    /// Opens the list of a combo by a key and clicks a row.
    void choose(QComboBox& combo, const QString& text);
    void choose(const char* combo, const QString& text) { choose(find<QComboBox>(combo), text); }
    void chooseType(const QString& text) { choose("IDC_QSELECT_OBJECT_TYPE_COMBO", text); }
    void chooseOperator(const QString& text) { choose("IDC_QSELECT_OPERATOR_COMBO", text); }
    void chooseValue(const QString& text) { choose(*valueCombo(), text); }
    void chooseProperty(const QString& text);
    /// Replaces what stands in the value edit.
    void type(const QString& text);
    void click(const char* button);

    QString textOf(const char* combo) { return find<QComboBox>(combo).currentText(); }
    QString typeName() { return textOf("IDC_QSELECT_OBJECT_TYPE_COMBO"); }
    QString operatorName() { return textOf("IDC_QSELECT_OPERATOR_COMBO"); }
    QString property();
    QLineEdit& edit() { return find<QLineEdit>("IDC_QSELECT_VALUE_EDIT"); }
    QListWidget& list() { return find<QListWidget>("IDC_QSELECT_PROPERTIES_LIST"); }
    /// The combo for the value that shows, or null.
    QComboBox* valueCombo();
    QStringList rows(const char* combo) { return rowsOf(find<QComboBox>(combo)); }
    QStringList properties();
    static QStringList rowsOf(QComboBox& combo);
    bool isEnabled(const char* name) { return find(name).isEnabled(); }
    bool isShown(const char* name) { return find(name).isVisible(); }

  private:
    QDialog& m_dialog;
};

using Act = std::function<void(Person&)>;

/// A standard drawing is the working one, the module is initialised, its texts are current, and the
/// settings are fresh. Nothing may stay open, no record may be left over.
class DialogTest : public testing::Test
{
  protected:
    DialogTest();
    ~DialogTest() override;
    void TearDown() override;

    template <class Entity>
    Entity* add(const wchar_t* layer = L"0")
    {
        auto* entity = new Entity;
        entity->setLayer(drawing.findOrAddRecord<KdDbLayerTable>(layer));
        append(entity);
        return entity;
    }
    template <class Entity>
    static void change(Entity* entity, const std::function<void(Entity&)>& change)
    {
        Entity* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, entity->objectId(), KdDb::kForWrite), eOk);
        change(*opened);
        opened->close();
    }
    ToyEntity* addToy(std::vector<ToyProperty> properties);
    OtherToy* addOtherToy(std::vector<ToyProperty> properties);

    /// Makes a dialog over these entities; the one before goes.
    CQSelectDialog& makeDialog(const Entities& entities, const Entities& selection = {});
    /// Shows it and lets a person act. A dialog that then still stands is cancelled.
    int use(const Act& act);
    int use(const Entities& entities, const Act& act)
    {
        makeDialog(entities);
        return use(act);
    }
    /// What the last dialog was asked for.
    const DialogParameters& outcome() const { return *dialog->GetDialogParameters(); }
    const PropertyParameters& property() const { return outcome().propertyParameters; }

    /// Calls the command, lets a person act on its dialog, and gives the selection afterwards.
    Ids command(const Act& act);
    static void select(const Ids& ids);
    static Ids selection();
    static int setShort(const wchar_t* variable, short value);
    static short getShort(const wchar_t* variable);
    static void remember(const wchar_t* name, int value);
    static void remember(const wchar_t* name, const wchar_t* value);

    KdDbDatabase drawing;
    Messages messages;
    std::unique_ptr<CQSelectDialog> dialog;

  private:
    void append(KdDbEntity* entity);

    std::string m_folder;
    ResourceScope m_resources;
    long m_setsBefore = kdedSelectionSetsInUse();
    long long m_recordsBefore = ResBuf::recordsInUse();
};

/// Lets a person act on whatever modal window comes up next.
void onNextWindow(const std::function<void(QWidget& window)>& act);

std::wstring wide(const QString& text);

} // namespace dialog_test
