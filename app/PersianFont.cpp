#include "app/PersianFont.h"

#include <QApplication>
#include <QFontDatabase>

namespace kavenda {

void usePersianFont()
{
    for (const QString& family : {QStringLiteral("Nazli"), QStringLiteral("DejaVu Sans")}) {
        if (QFontDatabase::hasFamily(family)) {
            QFont font(family);
            font.setPixelSize(14);
            QApplication::setFont(font);
            return;
        }
    }
}

}  // namespace kavenda
