#include "GameApplication.h"

#include "core/GameError.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace zorvane::screens {

GameApplication::GameApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("zorvane"));
    setOrganizationName(QStringLiteral("zorvane"));
    setApplicationDisplayName(QStringLiteral("Zorvane"));
    setDesktopFileName(QStringLiteral("zorvane"));
}

bool GameApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const ProcessEnded&) {
        if (onProcessEnded) {
            onProcessEnded();
            return true;
        }
        std::fflush(nullptr);
        std::_Exit(0);
    } catch (const std::exception& e) {
        const QString message = QString::fromLocal8Bit(e.what());
        if (onFatal) {
            onFatal(message);
            return true;
        }
        fatal(message);
    }
    return true;
}

void GameApplication::fatal(const QString& message) {
    std::fprintf(stderr, "zorvane: fatal: %s\n", message.toLocal8Bit().constData());
    if (QApplication::platformName() != QLatin1String("offscreen")) {
        QMessageBox box(QMessageBox::Critical, QStringLiteral("Zorvane"), message, QMessageBox::Ok);
        box.setObjectName(QStringLiteral("msgFatal"));
        box.exec();
    }
    std::fflush(nullptr);
    std::_Exit(1);
}

} // namespace zorvane::screens
