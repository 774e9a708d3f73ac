/// Shows pages of the help.
#pragma once

#include <QTextBrowser>

/// Pages are named as their files are, with a heading behind "#" if need be. Nothing is loaded from
/// elsewhere.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT
  public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    void goTo(const QString& place);
    /// The page and heading that were last opened.
    QString place() const { return m_place; }
    /// Goes to the next place where the text stands, or the one before; beyond the end it goes on
    /// at the other one.
    /// @return  false if the page has it nowhere
    bool search(const QString& text, bool backwards);

    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void goToHeading(const QUrl& source);

    QString m_place; ///< is told before `source` knows of it
};
