/// How well colours are told from each other.
#pragma once

#include <QColor>
#include <QPalette>

/// 1 for none, 21 between black and white.
double contrastOf(const QColor& first, const QColor& second);

QColor mixed(const QColor& first, const QColor& second, double part);

/// True for colours of windows that are as far from each other as colours can be, which people
/// choose who see little.
bool isHighContrast(const QPalette& palette);
