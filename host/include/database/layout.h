/// Layouts: the model and the sheets.
#pragma once

#include <database/object.h>
#include <geometry/point.h>

/// How a sheet is plotted. Lengths are millimetres of paper where nothing else is said.
struct KW_EXPORT PlotSettingsMembers : ObjectMembers
{
    KdString pageSetup;
    KdString printer;
    KdString paper;
    KdString view; ///< the named view that is plotted, if the area is one
    KdString styleSheet;
    double leftMargin = 0.0;
    double bottomMargin = 0.0;
    double rightMargin = 0.0;
    double topMargin = 0.0;
    double paperWidth = 0.0;
    double paperHeight = 0.0;
    KdGePoint2d origin;
    KdGePoint2d windowMinimum; ///< drawing units
    KdGePoint2d windowMaximum;
    double scaleNumerator = 1.0;   ///< paper units that stand for
    double scaleDenominator = 1.0; ///< so many drawing units
    double standardScaleFactor = 1.0;
    int flags = 0;
    int units = 0;    ///< 0 inches, 1 millimetres, 2 pixels
    int rotation = 0; ///< quarter turns, counter-clockwise
    int area = 0;     ///< 0 display, 1 extents, 2 limits, 3 view, 4 window, 5 layout
    int standardScale = 0;
};

/// A page setup: plot settings under a name of their own.
class KW_EXPORT KdDbPlotSettings : public KdDbObject
{
    KD_RX_DECLARE(KdDbPlotSettings)
    KD_DB_MEMBERS(PlotSettingsMembers)

    const KdString& getPlotSettingsName() const { return data().pageSetup; }
    const KdString& getPlotCfgName() const { return data().printer; }
    const KdString& getCanonicalMediaName() const { return data().paper; }
    const KdString& getPlotViewName() const { return data().view; }
    const KdString& getCurrentStyleSheet() const { return data().styleSheet; }
    /// All that is kept of how the sheet is plotted.
    const PlotSettingsMembers& plotSettings() const { return data(); }
};

struct KW_EXPORT LayoutMembers : PlotSettingsMembers
{
    KdString name;
    KdDbObjectId block;
    KdDbObjectId ucs; ///< null: none of the named ones
    int tabOrder = 0;
    int layoutFlags = 0; ///< 1: linetypes are scaled by the sheet, 2: the limits are checked
    KdDbHandle lastActiveViewport = 0;
    KdGePoint2d limitsMinimum;
    KdGePoint2d limitsMaximum;
    KdGePoint3d insertionBase;
    KdGePoint3d extentsMinimum;
    KdGePoint3d extentsMaximum;
    KdGePoint3d ucsOrigin;
    KdGeVector3d ucsXAxis{1.0, 0.0, 0.0};
    KdGeVector3d ucsYAxis{0.0, 1.0, 0.0};
    double elevation = 0.0;
};

class KW_EXPORT KdDbLayout : public KdDbPlotSettings
{
    KD_RX_DECLARE(KdDbLayout)
    KD_DB_MEMBERS(LayoutMembers)

    const KdString& getLayoutName() const { return data().name; }
    KdDbObjectId getBlockTableRecordId() const { return data().block; }
    int getTabOrder() const { return data().tabOrder; }
    /// The viewport that was current when the layout was left; the null id if it is not there.
    KdDbObjectId lastActiveViewportId() const;
    bool scalesLinetypesBySheet() const { return (data().layoutFlags & 1) != 0; }
    /// All that is kept of the layout.
    const LayoutMembers& settings() const { return data(); }
};

/// Finds layouts and knows which one is active.
class KW_EXPORT KdDbLayoutManager
{
  public:
    /// The block of the active layout: the model's while TILEMODE is 1, otherwise that of the
    /// active sheet. A null `database` means the working database; null id if there is none.
    KdDbObjectId getActiveLayoutBTRId(const KdDbDatabase* database = nullptr) const;
    /// The block of a layout by its name, without case; null id if there is none.
    KdDbObjectId findBlock(const wchar_t* layoutName, const KdDbDatabase* database = nullptr) const;
    /// Makes a layout the active one and sets TILEMODE accordingly; `eKeyNotFound`.
    KdErrorStatus setCurrentLayout(const wchar_t* name, KdDbDatabase* database = nullptr);
};
