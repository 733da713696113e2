// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/DesktopPrinters.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QUrl>
#include <memory>

#include "platform/system/OwnSettings.h"
#include "platform/system/SystemPrinter.h"

namespace {

/// The names of the settings of a printer; its own name may hold what groups of settings may not.
class PrinterSettings {
  public:
    explicit PrinterSettings(const QString& printer)
        : settings_(OpenOwnSettings(
              QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) %
                  QStringLiteral("/quillon/printers.conf"),
              QSettings::NativeFormat)) {
        if (settings_) {
            settings_->beginGroup(QString::fromLatin1(QUrl::toPercentEncoding(printer)));
        }
    }

    double Read(const char* name, double usual) const {
        bool number = false;
        if (!settings_) return usual;
        const double value = settings_->value(QString::fromLatin1(name), usual).toDouble(&number);
        return number ? value : usual;
    }

    void Write(const char* name, double value) {
        if (!settings_) return;
        settings_->setValue(QString::fromLatin1(name), QString::number(value, 'g', 15));
    }

    void Clear() {
        if (settings_) settings_->remove(QString());
    }

  private:
    std::unique_ptr<QSettings> settings_;
};

constexpr const char* moveAcross = "MoveAcross";
constexpr const char* moveDown = "MoveDown";
constexpr const char* scaleAcross = "ScaleAcross";
constexpr const char* scaleDown = "ScaleDown";

}  // namespace

QString DesktopPrinters::OwnName() {
    return QCoreApplication::translate("DesktopPrinters", "Preview and PDF");
}

QStringList DesktopPrinters::Names() {
    const QStringList names = SystemPrinterNames() << OwnName();
    if (!names.contains(current_)) current_.clear();
    return names;
}

QString DesktopPrinters::Current() {
    if (current_.isEmpty()) current_ = DefaultSystemPrinter();
    if (current_.isEmpty()) current_ = OwnName();
    return current_;
}

void DesktopPrinters::Print(QWidget* parent, const PrintTask& task) {
    const QString name = Current();
    if (name != OwnName()) {
        PrintOnSystemPrinter(name, task, CorrectionOf(name));
        return;
    }
    const QRectF room = OwnLayout(task.options).paintRect(QPageLayout::Millimeter);
    if (task.layOut(room.size(), {}).count > 0) preview_(parent, task);
}

PageCorrection DesktopPrinters::CorrectionOf(const QString& name) {
    const PrinterSettings settings(name);
    const PageCorrection none;
    return {.moveAcross = settings.Read(moveAcross, none.moveAcross),
            .moveDown = settings.Read(moveDown, none.moveDown),
            .scaleAcross = settings.Read(scaleAcross, none.scaleAcross),
            .scaleDown = settings.Read(scaleDown, none.scaleDown)};
}

void DesktopPrinters::SetCorrection(const QString& name, const PageCorrection& correction) {
    PrinterSettings settings(name);
    settings.Clear();
    if (correction == PageCorrection()) return;
    settings.Write(moveAcross, correction.moveAcross);
    settings.Write(moveDown, correction.moveDown);
    settings.Write(scaleAcross, correction.scaleAcross);
    settings.Write(scaleDown, correction.scaleDown);
}
