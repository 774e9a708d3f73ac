#include <ui/color_dialog.h>

#include <database/color_palette.h>

#include "color_names.h"
#include "palette_view.h"
#include "texts.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QColor rgbOf(const KdCmColor& color)
{
    if (color.colorMethod() == KdCmColor::kByColor)
        return QColor(color.red(), color.green(), color.blue());
    const int index = color.colorIndex();
    const bool isIndex = index >= 1 && index <= 255;
    return isIndex ? QColor::fromRgb(kdcmPaletteRgb(index)) : QColor(Qt::white);
}

QWidget* pageWith(QWidget* content)
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(content);
    return page;
}

} // namespace

KdUiColorDialog::KdUiColorDialog(const KdCmColor& initial, QWidget* parent)
    : QDialog(parent), m_pages(new QTabWidget), m_palette(new KdUiPaletteView), m_mixer(nullptr)
{
    setWindowTitle(resourceText(79130, "Select a Color"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_mixer = new QColorDialog(rgbOf(initial));
    m_mixer->setWindowFlags(Qt::Widget);
    m_mixer->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    const int index = initial.colorIndex();
    m_palette->setIndex(index >= 1 && index <= 255 ? index : 7);

    const QString numbered = resourceText(79131, "&Numbered Colors");
    m_palette->setAccessibleName(QString(numbered).remove('&'));
    m_pages->addTab(pageWith(m_palette), numbered);
    m_pages->addTab(pageWith(m_mixer), resourceText(79132, "&True Colors"));
    m_pages->setCurrentIndex(initial.colorMethod() == KdCmColor::kByColor ? 1 : 0);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    // The mixer has a default button of its own, which nobody sees.
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_palette, &KdUiPaletteView::picked, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pages);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

KdCmColor KdUiColorDialog::color() const
{
    KdCmColor color;
    if (m_pages->currentIndex() == 0) {
        color.setColorIndex(m_palette->index());
    } else {
        const QColor mixed = m_mixer->currentColor();
        color.setRGB(static_cast<std::uint8_t>(mixed.red()),
                     static_cast<std::uint8_t>(mixed.green()),
                     static_cast<std::uint8_t>(mixed.blue()));
    }
    return color;
}
