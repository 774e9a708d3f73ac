#include <kwdraw/window/status_line.h>

#include <editor/insert_units.h>
#include <editor/units.h>
#include <runtime/resbuf.h>

#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

#include <database/database.h>
#include <kwdraw/view/ground.h>

namespace {

constexpr int kSteps = 1000; // of the progress bar

QString textOf(const KdString& text)
{
    return QString::fromWCharArray(text.kwszPtr(), static_cast<int>(text.length()));
}

QString lengthText(double value)
{
    KdString text;
    return kddbRToS(value, text, -1, -1) == RTNORM ? textOf(text) : QString();
}

/// The units as the host names them, for the catalogues.
[[maybe_unused]] constexpr const char* kUnits[] = {
    QT_TRANSLATE_NOOP("StatusLine", "Inches"),
    QT_TRANSLATE_NOOP("StatusLine", "Feet"),
    QT_TRANSLATE_NOOP("StatusLine", "Miles"),
    QT_TRANSLATE_NOOP("StatusLine", "Millimeters"),
    QT_TRANSLATE_NOOP("StatusLine", "Centimeters"),
    QT_TRANSLATE_NOOP("StatusLine", "Meters"),
    QT_TRANSLATE_NOOP("StatusLine", "Kilometers"),
    QT_TRANSLATE_NOOP("StatusLine", "Microinches"),
    QT_TRANSLATE_NOOP("StatusLine", "Mils"),
    QT_TRANSLATE_NOOP("StatusLine", "Yards"),
    QT_TRANSLATE_NOOP("StatusLine", "Angstroms"),
    QT_TRANSLATE_NOOP("StatusLine", "Nanometers"),
    QT_TRANSLATE_NOOP("StatusLine", "Microns"),
    QT_TRANSLATE_NOOP("StatusLine", "Decimeters"),
    QT_TRANSLATE_NOOP("StatusLine", "Dekameters"),
    QT_TRANSLATE_NOOP("StatusLine", "Hectometers"),
    QT_TRANSLATE_NOOP("StatusLine", "Gigameters"),
    QT_TRANSLATE_NOOP("StatusLine", "Astronomical units"),
    QT_TRANSLATE_NOOP("StatusLine", "Light years"),
    QT_TRANSLATE_NOOP("StatusLine", "Parsecs"),
    QT_TRANSLATE_NOOP("StatusLine", "US survey feet"),
    QT_TRANSLATE_NOOP("StatusLine", "US survey inches"),
    QT_TRANSLATE_NOOP("StatusLine", "US survey yards"),
};

QString unitsOfDrawing()
{
    const KdDbDatabase* database = kddbHostApplicationServices()->workingDatabase();
    if (!database)
        return {};
    KdString name;
    const int unit = static_cast<int>(database->header().integer(L"INSUNITS"));
    const bool isKnown = unit != 0 && kdedGetUnitsValueString(unit, name) == RTNORM;
    return isKnown ? StatusLine::tr(textOf(name).toUtf8()) : StatusLine::tr("No units");
}

} // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QWidget(&bar),
      m_bar(bar),
      m_place(addLabel("place", 28)),
      m_units(addLabel("units", 0)),
      m_count(addLabel("count", 0)),
      m_previewColor(new QLabel),
      m_preview(addLabel("preview", 0)),
      m_what(addLabel("work", 0)),
      m_progress(new QProgressBar),
      m_cancel(new QToolButton)
{
    hide(); // its parts stand in the bar
    m_progress->setRange(0, kSteps);
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(160);
    m_progress->setMaximumHeight(14);
    m_cancel->setObjectName("cancelWork");
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAutoRaise(true);
    connect(m_cancel, &QToolButton::clicked, this, &StatusLine::cancelled);
    bar.addPermanentWidget(m_what);
    bar.addPermanentWidget(m_progress);
    bar.addPermanentWidget(m_cancel);
    m_previewColor->setFixedSize(10, 10);
    m_previewColor->setAutoFillBackground(true);
    bar.addPermanentWidget(m_previewColor);
    bar.addPermanentWidget(m_preview);
    bar.addPermanentWidget(m_count);
    bar.addPermanentWidget(m_units);
    bar.addWidget(m_place);
    endWork();
    showCount(0);
    showPreview({});
    colorPreview();
}

QLabel* StatusLine::addLabel(const char* name, int widthInLetters)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setMargin(2);
    label->setMinimumWidth(widthInLetters * label->fontMetrics().horizontalAdvance('0'));
    return label;
}

void StatusLine::showPlace(QPointF place)
{
    m_place->setText(tr("%1, %2").arg(lengthText(place.x()), lengthText(place.y())));
}

void StatusLine::showUnits()
{
    m_place->clear();
    m_units->setText(unitsOfDrawing());
}

void StatusLine::showCount(std::size_t selected)
{
    m_count->setText(tr("%1 selected").arg(selected));
}

void StatusLine::showPreview(const QString& line)
{
    m_preview->setText(line);
    m_preview->setVisible(!line.isEmpty());
    m_previewColor->setVisible(!line.isEmpty());
}

void StatusLine::colorPreview()
{
    const Ground ground = Ground::of(viewColorsOf(palette()), false);
    m_previewColor->setPalette(QPalette(ground.previewed));
}

void StatusLine::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colorPreview();
}

void StatusLine::showWork(const QString& what, double part)
{
    m_what->setText(what);
    m_progress->setValue(static_cast<int>(part * kSteps));
    for (QWidget* widget : {static_cast<QWidget*>(m_what), static_cast<QWidget*>(m_progress),
                            static_cast<QWidget*>(m_cancel)})
        widget->show();
}

void StatusLine::endWork()
{
    m_what->hide();
    m_progress->hide();
    m_cancel->hide();
}
