// The dialog description's values as Qt's.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>

namespace velkor6::qt {

inline QString toQString(std::u16string_view s) {
    return QString::fromUtf16(s.data(), static_cast<qsizetype>(s.size()));
}

inline std::u16string toU16(const QString& s) {
    return std::u16string(reinterpret_cast<const char16_t*>(s.utf16()),
                          static_cast<std::size_t>(s.size()));
}

inline QRect toQRect(const PixelRect& r) {
    return QRect(r.left, r.top, r.width, r.height);
}
inline QSize toQSize(const PixelSize& s) {
    return QSize(s.width, s.height);
}
inline PixelSize toPixelSize(const QSize& s) {
    return PixelSize{s.width(), s.height()};
}

inline QColor toQColor(std::uint32_t rgb) {
    return QColor(static_cast<int>(rgb >> 16 & 255), static_cast<int>(rgb >> 8 & 255),
                  static_cast<int>(rgb & 255));
}

// A Windows face this system lacks (MS Sans Serif, Tahoma) becomes the desktop's own.
QFont toQFont(const DialogFont& font);

} // namespace velkor6::qt
