/// Choosing a colour.
#pragma once

#include <database/color.h>

#include <QDialog>

class KdUiPaletteView;
class QColorDialog;
class QTabWidget;

/// Offers the 255 numbered colours and any colour by its parts.
class KW_EXPORT KdUiColorDialog : public QDialog
{
    Q_OBJECT
  public:
    /// @param initial  shown as chosen at first
    explicit KdUiColorDialog(const KdCmColor& initial, QWidget* parent = nullptr);

    KdCmColor color() const;

  private:
    QTabWidget* m_pages;
    KdUiPaletteView* m_palette;
    QColorDialog* m_mixer;
};
