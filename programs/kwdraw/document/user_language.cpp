#include <kwdraw/document/user_language.h>

#include <platform/resource_file.h>

#include <QCoreApplication>
#include <QLibraryInfo>

namespace {

QString fileOfCatalogue()
{
    return QString::fromStdString(findResourceFile("kwdraw.qm").string());
}

} // namespace

QString userLanguage()
{
    const std::string folder = findResourceFile("kwdraw.qm").parent_path().filename().string();
    return folder.empty() ? "en" : QString::fromStdString(folder);
}

Translation::Translation()
{
    // Those installed last are asked first.
    if (m_qt.load("qtbase_" + userLanguage(),
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    if (m_own.load(fileOfCatalogue()))
        QCoreApplication::installTranslator(&m_own);
}

Translation::~Translation()
{
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
}
