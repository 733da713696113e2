// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SystemPrinter.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLibrary>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QVariant>

#include "core/failure.h"
#include "platform/system/TextConversion.h"

namespace {

/// The key under which Qt's engine for CUPS takes options of the print system, name by name.
constexpr auto cupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

QString Said(const char* text) { return QCoreApplication::translate("SystemPrinter", text); }

[[noreturn]] void Refuse(const QString& printer, const QString& reason) {
    throw Failure(FromQString(Said("The printer \"%1\" does not print: %2.").arg(printer, reason)));
}

void TakeOptions(QPrinter& printer, const PrintTask& task) {
    printer.setDocName(task.title);
    printer.setCreator(QStringLiteral("Lottery Quillon World"));
    if (task.options.paper) printer.setPageSize(QPageSize(PageSizeOf(*task.options.paper)));
    if (task.options.orientation) {
        printer.setPageOrientation(PageOrientationOf(*task.options.orientation));
    }
    if (task.options.quality && printer.outputFormat() == QPrinter::NativeFormat) {
        printer.printEngine()->setProperty(
            cupsOptions,
            QStringList{QStringLiteral("print-quality"), QualityOption(*task.options.quality)});
    }
}

/// The print system takes a document silently even where it turns it away; the reason is its own
/// to tell.
class LastCupsError {
  public:
    LastCupsError() : library_(QStringLiteral("cups"), 2) {}

    /// What went wrong in the last request; nothing where all went well or the library is not
    /// there.
    QString Reason() {
        using LastError = int (*)();
        using LastErrorText = const char* (*)();
        const auto error = reinterpret_cast<LastError>(library_.resolve("cupsLastError"));
        const auto text = reinterpret_cast<LastErrorText>(library_.resolve("cupsLastErrorString"));
        constexpr int firstError = 0x400;
        if (error == nullptr || text == nullptr || error() < firstError) return {};
        QString reason = QString::fromUtf8(text()).trimmed();
        while (reason.endsWith(QLatin1Char('.'))) reason.chop(1);
        return reason;
    }

  private:
    QLibrary library_;
};

/// Paints into what the printer can print on. Left alone Qt would keep margins of its own.
void PaintOn(QPrinter& printer, const QString& name, const PrintTask& task,
             const PageCorrection& correction) {
    printer.setFullPage(false);
    const QPageLayout layout = printer.pageLayout();
    printer.setPageMargins(layout.minimumMargins(), layout.units());
    const QSizeF room = printer.pageLayout().paintRect(QPageLayout::Millimeter).size();
    const PrintedSheets sheets = task.layOut(room, correction);
    if (sheets.count == 0) return;
    const QString problem = PaintSheets(printer, printer.resolution(), sheets);
    if (!problem.isEmpty()) Refuse(name, problem);
    if (printer.printerState() == QPrinter::Error) Refuse(name, Said("it is in error"));
    if (printer.outputFormat() != QPrinter::NativeFormat) return;
    const QString reason = LastCupsError().Reason();
    if (!reason.isEmpty()) Refuse(name, reason);
}

}  // namespace

QStringList SystemPrinterNames() { return QPrinterInfo::availablePrinterNames(); }

QString DefaultSystemPrinter() { return QPrinterInfo::defaultPrinterName(); }

QString QualityOption(PrintQuality quality) {
    switch (quality) {
        case PrintQuality::Draft:
            return QStringLiteral("3");
        case PrintQuality::High:
            return QStringLiteral("5");
        case PrintQuality::Low:
        case PrintQuality::Medium:
            break;
    }
    return QStringLiteral("4");
}

void PrintOnSystemPrinter(const QString& name, const PrintTask& task,
                          const PageCorrection& correction) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) Refuse(name, Said("the system has no such printer any more"));
    QPrinter printer(info, QPrinter::HighResolution);
    // A printer that cannot be reached leaves Qt with a PDF that has no file.
    if (!printer.isValid() || printer.outputFormat() != QPrinter::NativeFormat) {
        Refuse(name, Said("the system cannot reach it"));
    }
    TakeOptions(printer, task);
    PaintOn(printer, name, task, correction);
}

QString PrintBySystemDialog(QWidget* parent, const PrintTask& task,
                            const std::function<PageCorrection(const QString&)>& correctionOf) {
    QPrinter printer(QPrinter::HighResolution);
    TakeOptions(printer, task);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted) return {};
    const bool toFile = printer.outputFormat() == QPrinter::PdfFormat;
    const QString name = toFile ? printer.outputFileName() : printer.printerName();
    PaintOn(printer, name, task, toFile ? PageCorrection() : correctionOf(name));
    return name;
}
