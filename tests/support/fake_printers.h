// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <vector>

#include "platform/system/Printers.h"

/// Printers that keep what they are given: an office printer, which is the current one, and our
/// own. All print on a `PlainRoom` of A4 without an edge, or of the paper asked for.
class FakePrinters final : public Printers {
  public:
    struct Printed {
        QString printer;
        PrintJob job;
        Document document;  ///< As it was composed; a correction is not applied.
    };
    struct PrintedPicture {
        QString printer;
        PictureJob job;
    };

    QStringList Names() override;
    QString Current() override { return current; }
    void Choose(const QString& name) override;
    void Print(QWidget* parent, const PrintJob& job) override;
    void PrintPicture(QWidget* parent, const PictureJob& job) override;
    PageCorrection CorrectionOf(const QString& name) override { return corrections[name]; }
    void SetCorrection(const QString& name, const PageCorrection& correction) override;

    QStringList names = {QStringLiteral("Office"), QStringLiteral("Preview and PDF")};
    QString current = QStringLiteral("Office");
    int asked = 0;  ///< How often the system was asked for its printers.
    std::vector<Printed> printed;
    std::vector<PrintedPicture> pictures;
    std::map<QString, PageCorrection> corrections;
};
