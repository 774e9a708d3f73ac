/// The widgets that dialog layouts name.
#pragma once

#include <runtime/export.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

/// A field for text.
class KW_EXPORT KdUiLineEdit : public QLineEdit
{
    Q_OBJECT
  public:
    explicit KdUiLineEdit(QWidget* parent = nullptr);

  signals:
    void valueChanged(const QString& text);
};

class KW_EXPORT KdUiPushButton : public QPushButton
{
    Q_OBJECT
  public:
    using QPushButton::QPushButton;
};

/// A list of texts. Tabs, by which programs order such texts, are kept and not shown.
class KW_EXPORT KdUiListBox : public QListWidget
{
    Q_OBJECT
  public:
    using QListWidget::QListWidget;

    void addText(const QString& text);
    /// The text as it was added.
    QString textAt(int row) const;
};

class KW_EXPORT KdUiComboBox : public QComboBox
{
    Q_OBJECT
  public:
    using QComboBox::QComboBox;

    /// 2: with a field to type in; 3: one of the rows alone.
    void setComboBoxStyle(int style);

    /// Makes the row at the end one that asks for something else. It is chosen from the open list
    /// alone: keys and wheel stop before it.
    void addOtherRow(const QString& text);
    /// The number of that row, or -1.
    int otherRow() const { return m_hasOtherRow ? count() - 1 : -1; }

    void showPopup() override;
    void hidePopup() override;

  private:
    void enableOtherRow(bool enable);

    bool m_hasOtherRow = false;
};

class KW_EXPORT KdUiColorComboBox : public KdUiComboBox
{
    Q_OBJECT
  public:
    using KdUiComboBox::KdUiComboBox;
};

class KW_EXPORT KdUiLineTypeComboBox : public KdUiComboBox
{
    Q_OBJECT
  public:
    using KdUiComboBox::KdUiComboBox;
};
