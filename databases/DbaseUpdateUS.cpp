// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdateUS.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "core/default_settings.h"
#include "core/settings.h"
#include "core/text.h"
#include "databases/us_results.h"
#include "platform/system/TextConversion.h"

using namespace us_results;

DbaseUpdateUS::DbaseUpdateUS(Program& program, QWidget* parent)
    : DownloadForm(program, QStringLiteral("DbaseUpdateUS"),
                   {.heading = tr("Download US lottery draws"),
                    .instruction = tr("2. Click the Download button when you are ready."),
                    .download = tr(" Download draws "),
                    .saveQuestion = tr("Are you sure you want to save these URLs?    ")},
                   parent) {
    AddAddress(QStringLiteral("Text1"), QStringLiteral("Label6"), tr("Mega Millions:"),
               setting::MegaMillionsAddress);
    AddAddress(QStringLiteral("Text2"), QStringLiteral("Label7"), tr("Powerball:"),
               setting::PowerballAddress);
    auto* body = new QVBoxLayout;
    body->addLayout(MakeAddresses());
    body->addSpacing(16);
    body->addLayout(MakeProgress(), 1);
    LayOut(body);
    TabInReadingOrder();
}

SkinLabels DbaseUpdateUS::Labels() const {
    SkinLabels labels = DownloadForm::Labels();
    labels.small = {QStringLiteral("Label2"), QStringLiteral("Label6"), QStringLiteral("Label7")};
    return labels;
}

void DbaseUpdateUS::DownloadAll() {
    DownloadMM();
    DownloadPB();
}

// The address as it stands in its box, saved or not.
void DbaseUpdateUS::DownloadMM() {
    Announce(tr("Connecting to Mega Millions..."));
    Download({.lottery = tr("Mega Millions"),
              .address = ToQString(Trim(FromQString(Addresses().front().box->text()))),
              .shortest = shortestPage,
              .workText = MegaMillionsWorkText,
              .database = megaMillionsFile,
              .convert =
                  [this](const std::string& workText, const std::string& source) {
                      return MegaMillionsDatabase(workText,
                                                  DefaultSetting(setting::LinkAddresses + 4),
                                                  UsDates(Dates()), source);
                  }},
             tr("Processing Mega Millions data..."));
}

// The address as it was saved.
void DbaseUpdateUS::DownloadPB() {
    Announce(tr("Connecting to Powerball site..."));
    Download({.lottery = tr("Powerball"),
              .address = ToQString(view().Settings(setting::PowerballAddress)),
              .shortest = shortestPage,
              .workText = PowerballWorkText,
              .database = powerballFile,
              .convert =
                  [this](const std::string& workText, const std::string& source) {
                      return PowerballDatabase(workText, DefaultSetting(setting::LinkAddresses + 3),
                                               UsDates(Dates()), source);
                  }},
             tr("Processing Powerball data..."));
}

void DbaseUpdateUS::Download(const Page& page, const QString& processing) {
    const auto bytes = Fetch(page);
    if (!bytes) {
        Complain(tr("Download error!"));
        return;
    }
    Announce(processing);
    Replace(page, *bytes);
    // Kept on purpose: the same words for both lotteries.
    Announce(tr("Updated Powerball database..."));
}
