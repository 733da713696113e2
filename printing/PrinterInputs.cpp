// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrinterInputs.h"

#include <QCoreApplication>
#include <QLineEdit>

#include "core/text.h"
#include "platform/system/Printers.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

QString Said(const char* text) { return QCoreApplication::translate("PrinterInputs", text); }

constexpr int standardQuality = 1;
constexpr int printerWidth = 240;

}  // namespace

ComboList* MakePrinterList() {
    auto* printers = Named(new ComboList, QStringLiteral("Combo1"));
    printers->setMinimumWidth(printerWidth);
    return printers;
}

void ListPrinters(const Services& services, ComboList& printers) {
    if (services.printers == nullptr) return;
    printers.addItems(services.printers->Names());
    printers.SetIndex(printers.findText(services.printers->Current(), Qt::MatchExactly));
}

void ChoosePrinter(const Services& services, const ComboList& printers) {
    if (services.printers != nullptr) services.printers->Choose(printers.currentText());
}

ComboList* MakeOptionList(const QString& name, const QStringList& entries) {
    auto* list = Named(new ComboList, name);
    list->addItems(entries);
    list->setToolTip(Said(" Not supported by all printers "));
    return list;
}

ComboList* MakeQualityList() {
    ComboList* qualities = MakeOptionList(
        QStringLiteral("Combo2"), {Said("Draft"), Said("Standard"), Said("Better"), Said("Best")});
    qualities->SetIndex(standardQuality);
    return qualities;
}

PrintQuality QualityOf(const ComboList& qualities) {
    switch (qualities.Index()) {
        case 0:
            return PrintQuality::Draft;
        case 2:
            return PrintQuality::Medium;
        case 3:
            return PrintQuality::High;
        default:
            return PrintQuality::Low;
    }
}

double NumberIn(const QLineEdit& box) { return LeadingNumber(FromQString(box.text())); }
