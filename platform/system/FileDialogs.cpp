// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FileDialogs.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/system/file_io.h"

namespace {

QString Said(const char* text) { return QCoreApplication::translate("FileDialogs", text); }

/// A title without what a file's name may not hold.
QString FileNameOf(QString title) {
    for (const QChar bad : QStringLiteral("/\\:*?\"<>|")) title.replace(bad, QLatin1Char('-'));
    return title.trimmed() % QStringLiteral(".pdf");
}

/// Where the desktop shows the disks of the user as folders; their own folder where it has none.
QString DisksFolder() {
    const QString user = QFileInfo(QDir::homePath()).fileName();
    for (const char* mounts : {"/run/media/", "/media/"}) {
        const QString folder = QString::fromLatin1(mounts) % user;
        if (!user.isEmpty() && QFileInfo(folder).isDir()) return folder;
    }
    return QDir::homePath();
}

/// A folder that the desktop keeps for the user, or their own where it has none.
QString UsersFolder(QStandardPaths::StandardLocation location) {
    const QString folder = QStandardPaths::writableLocation(location);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

QString ChosenIn(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0);
}

}  // namespace

QString AskForPdfFile(QWidget* parent, const QString& proposed) {
    QFileDialog dialog(parent, Said("Save as PDF"), UsersFolder(QStandardPaths::DocumentsLocation),
                       Said("PDF documents (*.pdf)"));
    dialog.setObjectName(QStringLiteral("SavePdfDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(FileNameOf(proposed));
    return ChosenIn(dialog);
}

QString ChooseFolder(QWidget* parent, const QString& title) {
    QFileDialog dialog(parent, title, DisksFolder());
    dialog.setObjectName(QStringLiteral("ChooseFolderDialog"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return ChosenIn(dialog);
}

QString ChooseFile(QWidget* parent, const QString& title, const QString& filter) {
    QFileDialog dialog(parent, title, UsersFolder(QStandardPaths::DownloadLocation), filter);
    dialog.setObjectName(QStringLiteral("ChooseFileDialog"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return ChosenIn(dialog);
}

QString WriteUserFile(const QString& path, const QByteArray& bytes) {
    try {
        WriteFileSafely(QFile::encodeName(path).toStdString(),
                        {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    } catch (const FileError& error) {
        return QString::fromStdString(error.reason);
    }
    return {};
}
