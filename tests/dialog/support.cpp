#include "support.h"

#include <cstdlib>
#include <filesystem>

#include <editor/system_variables.h>
#include <platform/config.h>
#include <ui/theme.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QTimer>

#include <command/entry.h>
#include <support/application.h>
#include <values/globals.h>

namespace dialog_test {

namespace {

[[maybe_unused]] const auto* const kApplication =
    testing::AddGlobalTestEnvironment(new ApplicationAround<QApplication>([] {
        setResourceLanguage("en");
        kduiApplyColorTheme();
    }));

class ToyProvider : public KdDbEntity_Extension
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override
    {
        for (const ToyProperty& property : toy(entity).properties) {
            names.append(KdString(property.key));
            flags.append(false);
        }
        return 0;
    }

    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result, bool,
                         bool withChoices) override
    {
        for (const ToyProperty& property : toy(entity).properties) {
            if (name.view() != property.key)
                continue;
            property.value(*result);
            ResBuf* tail = result;
            for (const Fill& fill : property.behind) {
                if (!withChoices)
                    break;
                tail = tail->setNext(ResBuf::newRb(ResBuf::kNone));
                fill(*tail);
            }
            return 1;
        }
        return 0;
    }

  private:
    static const ToyEntity& toy(const KdDbEntity* entity)
    {
        return static_cast<const ToyEntity&>(*entity);
    }
};

ToyProvider toyProvider;

} // namespace

KD_RX_DEFINE(ToyEntity, KdDbEntity, L"ToyThing", L"TOY")
KD_RX_DEFINE(OtherToy, ToyEntity, L"OtherToyThing", L"OTHERTOY")
KD_RX_DEFINE(Unprovided, KdDbEntity, L"UnprovidedThing", L"UNPROVIDED")

Fill real(double value, int kind)
{
    return [=](ResBuf& record) {
        record.setRestype(kind);
        record.setDouble(value);
    };
}

Fill integer(int value, int kind)
{
    return [=](ResBuf& record) {
        record.setRestype(kind);
        record.setInt8(static_cast<signed char>(value));
        record.setInt16(static_cast<short>(value));
        record.setInt32(value);
    };
}

Fill text(const wchar_t* value, int kind)
{
    return [=](ResBuf& record) {
        record.setRestype(kind);
        record.setString(value);
    };
}

Fill truth(bool value)
{
    return [=](ResBuf& record) {
        record.setRestype(ResBuf::kBool);
        record.setBool(value);
    };
}

Fill point(double x, double y)
{
    return [=](ResBuf& record) {
        record.setRestype(ResBuf::kPoint2d);
        record.setPoint2d({x, y});
    };
}

Fill point(double x, double y, double z)
{
    return [=](ResBuf& record) {
        record.setRestype(ResBuf::kPoint3d);
        record.setPoint3d({x, y, z});
    };
}

Fill color(int index)
{
    return [=](ResBuf& record) {
        KdCmColor value;
        value.setColorIndex(index);
        record.setRestype(ResBuf::kColor);
        record.setColor(value);
    };
}

Fill nothing()
{
    return [](ResBuf&) {};
}

void Person::choose(QComboBox& combo, const QString& text)
{
    const int row = combo.findText(text);
    if (row < 0)
        throw std::runtime_error("no row " + text.toStdString());
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_F4);
    QAbstractItemView* view = combo.view();
    const QModelIndex index = combo.model()->index(row, combo.modelColumn());
    view->scrollTo(index);
    QTest::mouseMove(view->viewport(), view->visualRect(index).center());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

void Person::chooseProperty(const QString& text)
{
    const QList<QListWidgetItem*> found = list().findItems(text, Qt::MatchExactly);
    if (found.isEmpty())
        throw std::runtime_error("no property " + text.toStdString());
    list().scrollToItem(found.first());
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualItemRect(found.first()).center());
}

void Person::type(const QString& text)
{
    edit().setFocus();
    QTest::keyClick(&edit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit(), Qt::Key_Delete);
    QTest::keyClicks(&edit(), text);
}

void Person::click(const char* button)
{
    QWidget& widget = find(button);
    // Radio buttons and boxes take a click only on what they show.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(9, widget.height() / 2));
}

QString Person::property()
{
    const QList<QListWidgetItem*> chosen = list().selectedItems();
    return chosen.isEmpty() ? QString() : chosen.first()->text();
}

QComboBox* Person::valueCombo()
{
    for (QComboBox* combo : m_dialog.findChildren<QComboBox*>()) {
        if (combo->isVisible() && combo->geometry() == edit().geometry())
            return combo;
    }
    return nullptr;
}

QStringList Person::rowsOf(QComboBox& combo)
{
    QStringList texts;
    for (int row = 0; row < combo.count(); ++row)
        texts << combo.itemText(row);
    return texts;
}

QStringList Person::properties()
{
    QStringList texts;
    for (int row = 0; row < list().count(); ++row)
        texts << list().item(row)->text();
    return texts;
}

DialogTest::DialogTest()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kwdialog-XXXXXX").string();
    m_folder = mkdtemp(pattern.data());
    setenv("XDG_CONFIG_HOME", m_folder.c_str(), 1);
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
    gComboValues.clear();
    QSelectInit();
    ToyEntity::desc()->addX(KdDbEntityPE::desc(), &toyProvider);
}

DialogTest::~DialogTest()
{
    dialog.reset();
    ToyEntity::desc()->delX(KdDbEntityPE::desc());
    QSelectUnInit();
    gComboValues.clear();
    setShort(L"QSELECTLISTVALUES", 0);
    setShort(L"COLORTHEME", 0);
    setShort(L"LWUNITS", 1);
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    std::filesystem::remove_all(m_folder);
}

void DialogTest::TearDown()
{
    dialog.reset();
    EXPECT_EQ(drawing.openCount(), 0) << "objects were left open";
    EXPECT_EQ(kdedSelectionSetsInUse(), m_setsBefore) << "selection sets were left";
    EXPECT_EQ(ResBuf::recordsInUse(), m_recordsBefore) << "value records were left";
}

void DialogTest::append(KdDbEntity* entity)
{
    KdDbBlockTableRecord* model = nullptr;
    ASSERT_EQ(kddbOpenObject(model, drawing.modelSpaceId(), KdDb::kForWrite), eOk);
    EXPECT_EQ(model->appendEntity(entity), eOk);
    model->close();
}

ToyEntity* DialogTest::addToy(std::vector<ToyProperty> properties)
{
    auto* toy = add<ToyEntity>();
    toy->properties = std::move(properties);
    return toy;
}

OtherToy* DialogTest::addOtherToy(std::vector<ToyProperty> properties)
{
    auto* toy = add<OtherToy>();
    toy->properties = std::move(properties);
    return toy;
}

CQSelectDialog& DialogTest::makeDialog(const Entities& entities, const Entities& selection)
{
    dialog.reset(); // before the next one, since both own the same global
    dialog = std::make_unique<CQSelectDialog>(entities, selection);
    return *dialog;
}

namespace {

/// Acts on a dialog once it stands, and ends it if it still does afterwards.
void actOn(QDialog& dialog, const Act& act)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    QApplication::setActiveWindow(&dialog);
    Person person(dialog);
    try {
        act(person);
    } catch (const std::exception& problem) {
        ADD_FAILURE() << problem.what();
    }
    if (dialog.isVisible())
        dialog.reject();
}

} // namespace

int DialogTest::use(const Act& act)
{
    QTimer::singleShot(0, [&] { actOn(*dialog, act); });
    return dialog->DoModal(true);
}

Ids DialogTest::command(const Act& act)
{
    QTimer::singleShot(0, [&] {
        auto* shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(shown) << "no dialog came up";
        actOn(*shown, act);
    });
    selectCmd();
    return selection();
}

void DialogTest::select(const Ids& ids)
{
    kds_name set;
    ASSERT_EQ(kdedSSAdd(nullptr, nullptr, set), RTNORM);
    for (const KdDbObjectId id : ids) {
        kds_name entity;
        ASSERT_EQ(kddbGetKdsName(entity, id), eOk);
        kdedSSAdd(entity, set, set);
    }
    EXPECT_EQ(kdedSSSetFirst(set, nullptr), RTNORM);
    kdedSSFree(set);
}

Ids DialogTest::selection()
{
    Ids ids;
    kds_name set;
    if (kdedSSGetFirst(set) != RTNORM)
        return ids;
    kds_name entity;
    for (long i = 0; kdedSSName(set, i, entity) == RTNORM; ++i) {
        KdDbObjectId id;
        EXPECT_EQ(kddbGetObjectId(id, entity), eOk);
        ids.push_back(id);
    }
    kdedSSFree(set);
    return ids;
}

int DialogTest::setShort(const wchar_t* variable, short value)
{
    resbuf record{};
    record.restype = RTSHORT;
    record.resval.rint = value;
    return kdedSetVar(variable, &record);
}

short DialogTest::getShort(const wchar_t* variable)
{
    resbuf record{};
    EXPECT_EQ(kdedGetVar(variable, &record), RTNORM);
    return record.resval.rint;
}

namespace {

void store(const wchar_t* name, const KdadVariant& value)
{
    const std::wstring key = std::wstring(L"UserInterfaceSettings/KwQSelect/") + name;
    EXPECT_TRUE(kdadConfig().setValue(KwdrawConfig::kUserInterface, key.c_str(), value));
}

} // namespace

void DialogTest::remember(const wchar_t* name, int value)
{
    store(name, KdadVariant::ofInteger(value));
}

void DialogTest::remember(const wchar_t* name, const wchar_t* value)
{
    store(name, KdadVariant::ofText(value));
}

void onNextWindow(const std::function<void(QWidget& window)>& act)
{
    constexpr int kOften = 10; // milliseconds
    constexpr int kMost = 300; // times
    const QWidget* const before = QApplication::activeModalWidget();
    auto* timer = new QTimer(qApp);
    int tries = 0;
    QObject::connect(timer, &QTimer::timeout, timer, [=]() mutable {
        QWidget* window = QApplication::activeModalWidget();
        const bool isNew = window && window != before;
        if (!isNew && ++tries < kMost)
            return;
        timer->deleteLater();
        timer->stop();
        ASSERT_TRUE(isNew) << "no other window came up";
        act(*window);
    });
    timer->start(kOften);
}

std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

} // namespace dialog_test
