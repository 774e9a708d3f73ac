/// The language that the program speaks: the one that the module's texts are in.
#pragma once

#include <QString>
#include <QTranslator>

/// "de" or "pt_BR"; "en" where there is no catalogue of the program in the user's language.
QString userLanguage();

/// While it lives, the texts of the program, and those of Qt where they are installed, appear in
/// the user's language. Needs a QApplication; windows that were made before stay as they are.
class Translation
{
  public:
    Translation();
    ~Translation();
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;

  private:
    QTranslator m_own;
    QTranslator m_qt;
};
