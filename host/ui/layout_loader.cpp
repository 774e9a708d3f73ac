#include "layout_loader.h"

#include <ui/widgets.h>

#include <platform/resource_layouts.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDialog>
#include <QLayout>
#include <QUiLoader>

#include <array>
#include <string>

namespace {

/// No widget of a layout comes from a plugin, and looking for plugins would load every one that
/// there is.
class WithoutPlugins
{
  public:
    WithoutPlugins() : m_paths(QCoreApplication::libraryPaths())
    {
        QCoreApplication::setLibraryPaths({});
    }
    ~WithoutPlugins() { QCoreApplication::setLibraryPaths(m_paths); }
    WithoutPlugins(const WithoutPlugins&) = delete;
    WithoutPlugins& operator=(const WithoutPlugins&) = delete;

  private:
    QStringList m_paths;
};

template <class Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

struct WidgetRow
{
    const char* name;
    QWidget* (*make)(QWidget* parent);
};

constexpr WidgetRow kWidgets[] = {
    {"KdUiComboBox", make<KdUiComboBox>},
    {"KdUiLineEdit", make<KdUiLineEdit>},
    {"KdUiListBox", make<KdUiListBox>},
    {"KdUiPushButton", make<KdUiPushButton>},
};

/// Builds into a dialog that is there already.
class Loader : public QUiLoader
{
  public:
    explicit Loader(QDialog& dialog) : m_dialog(dialog) {}

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override
    {
        if (!parent)
            return &m_dialog;
        for (const WidgetRow& row : kWidgets) {
            if (className != QLatin1String(row.name))
                continue;
            QWidget* widget = row.make(parent);
            widget->setObjectName(name);
            return widget;
        }
        return QUiLoader::createWidget(className, parent, name);
    }

  private:
    QDialog& m_dialog;
};

} // namespace

bool loadLayout(std::wstring_view resourcePath, std::wstring_view name, QDialog& dialog)
{
    const std::size_t slash = resourcePath.find(L'/');
    if (slash == std::wstring_view::npos)
        return false;
    const std::wstring library = std::wstring(resourcePath.substr(0, slash)) + L".dll";
    const std::wstring path =
        std::wstring(resourcePath.substr(slash + 1)) + L'/' + std::wstring(name);
    const std::string_view layout = kdFindLayout(LoadResourceDll(library.c_str()), path);
    if (layout.empty())
        return false;
    QByteArray bytes = QByteArray::fromRawData(layout.data(), static_cast<int>(layout.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const WithoutPlugins quick;
    Loader loader(dialog);
    return loader.load(&buffer, nullptr) != nullptr;
}
