#pragma once

#include <QColor>

// Colours around and over pictures, the same in every theme: photographs are judged on neutral grey, and what is written over
// them has its own ground.
inline const QColor kSurround(38, 38, 38);
inline const QColor kOnSurround(224, 224, 224);
inline const QColor kChip(24, 24, 24, 190);
inline const QColor kOnChip(255, 255, 255);
inline const QColor kLine(255, 255, 255);
inline const QColor kLineEdge(0, 0, 0, 140);
inline const QColor kPlotGround(24, 24, 24);
