#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <ui/help.h>
#include <ui/theme.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolTip>

#include <algorithm>
#include <set>

#include <dialog/list_controls.h>

using namespace dialog_test;
using testing::ElementsAre;

namespace {

class Look : public DialogTest
{
  protected:
    CQSelectDialog& lineDialog() { return makeDialog({add<KdDbLine>()}); }
};

TEST_F(Look, HasTheControlsOfTheLayoutByTheirNames)
{
    const std::pair<const char*, const char*> rows[] = {
        {"IDC_QSELECT_APPLY_TO_COMBO", "QComboBox"},
        {"IDC_QSELECT_SELECT_OBJECTS_BUTTON", "KdUiPushButton"},
        {"IDC_QSELECT_OBJECT_TYPE_COMBO", "QComboBox"},
        {"IDC_QSELECT_PROPERTIES_LIST", "QListWidget"},
        {"IDC_QSELECT_OPERATOR_COMBO", "QComboBox"},
        {"IDC_QSELECT_VALUE_LABEL", "QLabel"},
        {"IDC_QSELECT_VALUE_EDIT", "QLineEdit"},
        {"IDC_QSELECT_INCLUDE_BUTTON", "QRadioButton"},
        {"IDC_QSELECT_EXCLUDE_BUTTON", "QRadioButton"},
        {"IDC_QSELECT_APPEND_CHECK_BUTTON", "QCheckBox"},
        {"IDC_QSELECT_SHOWLISTVALUES_CHECK_BUTTON", "QCheckBox"},
        {"IDOK", "QPushButton"},
        {"IDCANCEL", "QPushButton"},
        {"IDHELP", "QPushButton"},
    };
    lineDialog();
    for (const auto& [name, type] : rows) {
        const QWidget* widget = dialog->getWidgetsFromOrignal(name, 0);
        ASSERT_TRUE(widget) << name;
        EXPECT_TRUE(widget->inherits(type)) << name;
    }
    EXPECT_EQ(dialog->getWidgetsFromOrignal("IDC_QSELECT_VALUE_COMBO", 0), nullptr)
        << "that one is made when the dialog begins";
    use([](Person& person) {
        EXPECT_TRUE(person.find<QComboBox>("IDC_QSELECT_VALUE_COMBO").isHidden());
    });
}

TEST_F(Look, KeepsItsSize)
{
    lineDialog();
    EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize());
    EXPECT_GE(dialog->width(), dialog->sizeHint().width());
}

TEST_F(Look, HasALabelAndAKeyForEachControl)
{
    lineDialog();
    use([](Person& person) {
        std::set<QString> keys;
        for (const QLabel* label : person.dialog().findChildren<QLabel*>()) {
            EXPECT_TRUE(label->buddy()) << label->text().toStdString();
            const int mark = label->text().indexOf('&');
            ASSERT_GE(mark, 0) << label->text().toStdString();
            EXPECT_TRUE(keys.insert(label->text().mid(mark + 1, 1).toUpper()).second);
        }
        for (const QAbstractButton* button : person.dialog().findChildren<QAbstractButton*>()) {
            const int mark = button->text().indexOf('&');
            const bool isMarked = mark >= 0 && button->isVisible();
            EXPECT_TRUE(!isMarked || keys.insert(button->text().mid(mark + 1, 1).toUpper()).second)
                << button->text().toStdString();
        }
        EXPECT_TRUE(keys.insert("S").second) << "the key of the button with the icon";
    });
}

TEST_F(Look, GoesThroughTheControlsFromTopToBottom)
{
    makeDialog({add<KdDbLine>(), add<KdDbCircle>()});
    use([](Person& person) {
        person.chooseProperty("Linetype scale");
        person.type("1");
        person.find("IDC_QSELECT_APPLY_TO_COMBO").setFocus();
        QStringList names;
        for (int i = 0; i < 11; ++i) {
            names << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(names,
                  (QStringList{"IDC_QSELECT_APPLY_TO_COMBO", "IDC_QSELECT_SELECT_OBJECTS_BUTTON",
                               "IDC_QSELECT_OBJECT_TYPE_COMBO", "IDC_QSELECT_PROPERTIES_LIST",
                               "IDC_QSELECT_OPERATOR_COMBO", "IDC_QSELECT_VALUE_EDIT",
                               "IDC_QSELECT_INCLUDE_BUTTON", "IDC_QSELECT_APPEND_CHECK_BUTTON",
                               "IDOK", "IDCANCEL", "IDHELP"}));
    });
}

TEST_F(Look, ReachesTheValueComboByTabAndByTheKeyOfItsLabel)
{
    makeDialog({add<KdDbLine>(), add<KdDbCircle>()});
    use([](Person& person) {
        person.chooseProperty("Layer");
        person.find("IDC_QSELECT_OPERATOR_COMBO").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), person.valueCombo());
        person.list().setFocus();
        QTest::keyClick(&person.dialog(), Qt::Key_V, Qt::AltModifier);
        EXPECT_EQ(QApplication::focusWidget(), person.valueCombo());
    });
}

TEST_F(Look, NamesEachControlForScreenReaders)
{
    lineDialog();
    use([](Person& person) {
        for (const QWidget* widget : person.dialog().findChildren<QWidget*>()) {
            const bool isControl = widget->objectName().startsWith("ID") && widget->isVisible() &&
                                   widget->focusPolicy() != Qt::NoFocus;
            if (!isControl)
                continue;
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const bool hasName =
                !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
            EXPECT_TRUE(hasName) << widget->objectName().toStdString();
        }
    });
}

QImage pictureOf(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32);
}

class LookOfTheme : public Look, public testing::WithParamInterface<short>
{
};

TEST_P(LookOfTheme, HasItsIconToTheRightOfTheFirstCombo)
{
    setShort(L"COLORTHEME", GetParam());
    lineDialog();
    use([](Person& person) {
        const QString path = GetParam() == 1
                                 ? ":/KwQselectUtilRes/KrxQselectRes/IDI_FIND_SELECT_LIGHT"
                                 : ":/KwQselectUtilRes/KrxQselectRes/IDI_FIND_SELECT";
        ASSERT_TRUE(QFile::exists(path));
        auto& button = person.find<QPushButton>("IDC_QSELECT_SELECT_OBJECTS_BUTTON");
        EXPECT_EQ(pictureOf(button.icon()), pictureOf(QIcon(path)));
        const QWidget& combo = person.find("IDC_QSELECT_APPLY_TO_COMBO");
        EXPECT_EQ(button.x(), combo.x() + combo.width() + 10);
        EXPECT_EQ(button.y(), combo.y());
    });
}

INSTANTIATE_TEST_SUITE_P(, LookOfTheme, testing::Values(short{0}, short{1}), [](const auto& row) {
    return std::string(row.param == 1 ? "light" : "dark");
});

TEST_F(Look, HasTwoIconsThatDiffer)
{
    lineDialog(); // loads the library that holds them
    EXPECT_NE(pictureOf(QIcon(":/KwQselectUtilRes/KrxQselectRes/IDI_FIND_SELECT_LIGHT")),
              pictureOf(QIcon(":/KwQselectUtilRes/KrxQselectRes/IDI_FIND_SELECT")));
}

TEST_F(Look, ScrollsLongListsAfterTheirRows)
{
    for (int i = 0; i < 60; ++i)
        drawing.findOrAddRecord<KdDbLayerTable>(KdString(L"L" + std::to_wstring(100 + i)));
    makeDialog({addToy({{L"A:Layer", text(L"0", 8)}, {L"A:W", text(L"x", 370)}})});
    use([](Person& person) {
        for (const auto& [property, rows] : {std::pair{"Layer", 30}, {"W", 5}}) {
            person.chooseProperty(property);
            QComboBox* combo = person.valueCombo();
            EXPECT_EQ(combo->maxVisibleItems(), rows);
            combo->showPopup();
            const int height = combo->view()->sizeHintForRow(0);
            EXPECT_LE(combo->view()->height(), (rows + 1) * height) << property;
            const int room = combo->screen()->availableGeometry().height() / 3;
            EXPECT_GE(combo->view()->height(), std::min((rows - 1) * height, room)) << property;
            combo->hidePopup();
        }
    });
}

TEST_F(Look, TellsWhatTheButtonIsForWhileTheMouseRestsOnIt)
{
    lineDialog();
    use([](Person& person) {
        QWidget& button = person.find("IDC_QSELECT_SELECT_OBJECTS_BUTTON");
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(&button, &enter);
        EXPECT_FALSE(QToolTip::isVisible());
        EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }));
        EXPECT_EQ(QToolTip::text(), "Select objects");
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&button, &leave);
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    });
}

TEST_F(Look, OpensTheHelpAtItsTopic)
{
    std::vector<std::wstring> topics;
    const KdUiHelpViewer before =
        kduiSetHelpViewer([&](const wchar_t* topic) { topics.emplace_back(topic); });
    lineDialog();
    use([](Person& person) {
        person.click("IDHELP");
        QTest::keyClick(&person.list(), Qt::Key_F1);
    });
    kduiSetHelpViewer(before);
    EXPECT_THAT(topics, ElementsAre(L"QSELECT_DIA", L"QSELECT_DIA"));
}

TEST_F(Look, HasAListControlWithNothingToDo)
{
    CQselectComboBox combo;
    EXPECT_STREQ(combo.GetRuntimeClass()->m_lpszClassName, "CQselectComboBox");
    EXPECT_STREQ(combo.GetRuntimeClass()->m_pBaseClass->m_lpszClassName, "CComboBox");
    EXPECT_EQ(combo.OnCtlColor(nullptr, nullptr, 0), nullptr);
    CQselectComboListBox list;
    EXPECT_EQ(list.row(), -1);
    EXPECT_FALSE(list.PreTranslateMessage(nullptr));
    EXPECT_EQ(list.GetParentComboBox(), nullptr);
}

TEST_F(Look, RegistersTheImageOfTheModule)
{
    QFile image(":/KwQselectUtil/kwrc_qselect_ent");
    ASSERT_TRUE(image.open(QIODevice::ReadOnly));
    EXPECT_EQ(image.size(), 3227);
    EXPECT_TRUE(image.read(4).endsWith("PNG"));
}

} // namespace
