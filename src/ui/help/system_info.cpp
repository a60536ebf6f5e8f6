// The platform facts as Qt knows them.
#include "ui/help/system_info.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>
#include <QWidget>

namespace flexley {

QString system_info_text(const QWidget& window) {
    QStringList lines{
        "Operating system: " + QSysInfo::prettyProductName(),
        "Kernel: " + QSysInfo::kernelType() + " " + QSysInfo::kernelVersion(),
        "CPU architecture: " + QSysInfo::currentCpuArchitecture(),
        QString("Qt version: ") + qVersion() + " (" + QGuiApplication::platformName() +
            " platform)",
    };
    const QScreen* screen = window.screen() ? window.screen() : QGuiApplication::primaryScreen();
    if (screen) {
        const QSize size = screen->size();
        lines << QString("Screen: %1 x %2 pixels, %3 dots per inch, pixel ratio %4")
                     .arg(size.width())
                     .arg(size.height())
                     .arg(qRound(screen->logicalDotsPerInch()))
                     .arg(screen->devicePixelRatio());
    }
    return lines.join('\n');
}

}  // namespace flexley
