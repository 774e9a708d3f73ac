/// The property panel's tree: categories, their properties, and what those are made of.
#pragma once

#include <memory>
#include <vector>

#include <QColor>
#include <QString>

#include <kwdraw/panels/property_merge.h>

struct PropertyRow
{
    enum class Kind
    {
        Category,
        Property,
        Coordinate, ///< of a point
        Point,      ///< one of several values of a property
    };

    Kind kind = Kind::Category;
    QString name;
    QString value; ///< one line
    QString whole; ///< the value with its line ends
    bool varies = false;
    QColor swatch;           ///< invalid for what is no colour
    MergedProperty property; ///< of a property and what is below it, otherwise empty
    int axis = 0;            ///< of a coordinate: 1 X, 2 Y, 3 Z
    PropertyRow* parent = nullptr;
    int place = 0; ///< among the rows of its parent
    std::vector<std::unique_ptr<PropertyRow>> rows;
};

/// The categories in the order in which they are met.
std::vector<std::unique_ptr<PropertyRow>> propertyRows(const std::vector<MergedProperty>& merged);
