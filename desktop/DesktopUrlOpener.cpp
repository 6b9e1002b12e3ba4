#include "desktop/DesktopUrlOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace kavenda {

void DesktopUrlOpener::open(const std::string& address)
{
    QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(address)));
}

}  // namespace kavenda
