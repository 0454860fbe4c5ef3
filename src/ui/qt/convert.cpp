#include "ui/qt/convert.h"

#include <QApplication>
#include <QFontDatabase>

namespace velkor6::qt {

QFont toQFont(const DialogFont& font) {
    QFont f = QApplication::font();
    const QString family = toQString(font.name);
    if (!family.isEmpty() && QFontDatabase::hasFamily(family))
        f.setFamily(family);
    if (font.pointSize > 0)
        f.setPointSize(font.pointSize);
    f.setBold(font.bold);
    return f;
}

} // namespace velkor6::qt
