// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FileDialogs.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

#include "platform/system/file_io.h"

namespace {

QString Said(const char* text) { return QCoreApplication::translate("FileDialogs", text); }

/// A title without what a file's name may not hold.
QString FileNameOf(QString title) {
    for (const QChar bad : QStringLiteral("/\\:*?\"<>|")) title.replace(bad, QLatin1Char('-'));
    return title.trimmed() % QStringLiteral(".pdf");
}

}  // namespace

QString AskForPdfFile(QWidget* parent, const QString& proposed) {
    QFileDialog dialog(parent, Said("Save as PDF"),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       Said("PDF documents (*.pdf)"));
    dialog.setObjectName(QStringLiteral("SavePdfDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(FileNameOf(proposed));
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0);
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
