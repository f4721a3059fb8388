#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QRectF>

class QWidget;

namespace Kavrel::UICore::Internal {

// The per-axis conversions of the scalable values. The factor is accepted and
// ignored: the library draws in device-independent pixels.
inline int ScaleX(int value, float = 0.0f) { return value; }
inline int ScaleY(int value, float = 0.0f) { return value; }

// The widget's device pixel ratio rounded to 5 % steps, limited to 1.00 ... 3.50.
KVUICORE_EXPORT float DeviceScaleFactor(const QWidget* widget);
KVUICORE_EXPORT float DeviceScaleFactorForRatio(float devicePixelRatio);

// 1, 2 or 3: the width in device pixels of a cosmetic stroke at that factor.
KVUICORE_EXPORT float ResolutionBucket(float factor);

// The logical width of a stroke that covers whole device pixels.
inline float StrokeUnit(float factor) { return ResolutionBucket(factor) / factor; }

// The rectangle inset by (left, top, right, bottom) units, with width and
// height cut to whole units and an edge that lies on the unit grid moved to the
// middle of the unit, so a stroke of one unit covers whole device pixels.
KVUICORE_EXPORT QRectF SnappedRect(const QRectF& rect, float left, float top, float right, float bottom,
                                   float unit);

} // namespace Kavrel::UICore::Internal
