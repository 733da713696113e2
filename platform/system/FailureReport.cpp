// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FailureReport.h"

#include <QCoreApplication>
#include <QMessageBox>

void ShowFailureReport(const QString& text) {
    QMessageBox box;
    box.setObjectName(QStringLiteral("FailureReport"));
    box.setWindowTitle(QStringLiteral("Lottery Quillon World"));
    box.setIcon(QMessageBox::Critical);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(
        QCoreApplication::translate("FailureReport", "The program ends now, without saving."));
    box.setStandardButtons(QMessageBox::Close);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}
