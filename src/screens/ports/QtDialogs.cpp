#include "ports/QtDialogs.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QProcess>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace zorvane::screens {

Answer QtDialogs::ask(const std::string& text, Buttons buttons) {
    QMessageBox::StandardButtons set = QMessageBox::Ok;
    if (buttons == Buttons::YesNo)
        set = QMessageBox::Yes | QMessageBox::No;
    else if (buttons == Buttons::YesNoCancel)
        set = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    QString message = QString::fromStdString(text);
    message.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QMessageBox box(buttons == Buttons::Ok ? QMessageBox::Information : QMessageBox::Question,
                    QStringLiteral("Zorvane"), message, set, parent);
    box.setObjectName(QStringLiteral("msgBox"));
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        // Closing a Yes/No box by its window is No; a Yes/No/Cancel box, Cancel.
        if (buttons == Buttons::YesNoCancel)
            return Answer::Cancel;
        return buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
}

std::string QtDialogs::input(const std::string& prompt, const std::string& title,
                             const std::string& defaultText) {
    bool ok = false;
    const QString text =
        QInputDialog::getText(parent, QString::fromStdString(title), QString::fromStdString(prompt),
                              QLineEdit::Normal, QString::fromStdString(defaultText), &ok);
    return ok ? text.toStdString() : std::string();
}

QString qtFileFilter(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList entries;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i];
        const int paren = description.indexOf(QLatin1Char('('));
        if (paren > 0)
            description = description.left(paren).trimmed();
        QStringList patterns;
        for (const QString& p : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QString pattern =
                p.trimmed() == QLatin1String("*.*") ? QStringLiteral("*") : p.trimmed();
            for (const QString& variant : {pattern.toLower(), pattern.toUpper()})
                if (!patterns.contains(variant))
                    patterns << variant;
        }
        entries << description + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return entries.join(QStringLiteral(";;"));
}

std::string QtDialogs::chooseFile(FileMode mode, const std::string& filter,
                                  const std::string& title) {
    const QString caption = QString::fromStdString(title);
    const QString qtFilter = qtFileFilter(filter);
    const QString path = mode == FileMode::Open
                             ? QFileDialog::getOpenFileName(parent, caption, QString(), qtFilter)
                             : QFileDialog::getSaveFileName(parent, caption, QString(), qtFilter);
    return path.toStdString();
}

void QtDialogs::showHelp(const std::string& topic) {
    if (onHelp)
        onHelp(topic);
}

void QtDialogs::startProcess(const std::string& path) {
    QString program = QString::fromStdString(path);
    program.remove(QLatin1Char('"'));
    QProcess::startDetached(program, {});
}

void QtDialogs::endProcess(const std::string&) {
    std::fflush(nullptr);
    std::_Exit(0);
}

} // namespace zorvane::screens
