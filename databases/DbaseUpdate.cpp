// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdate.h"

#include <QTabWidget>
#include <QVBoxLayout>
#include <array>

#include "core/british_dates.h"
#include "core/default_settings.h"
#include "core/settings.h"
#include "databases/uk_results.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

/// A page of the tabs that holds the layout.
QWidget* TabOf(QLayout* layout) {
    auto* tab = new QWidget;
    auto* column = new QVBoxLayout(tab);
    column->addLayout(layout, 1);
    return tab;
}

}  // namespace

DbaseUpdate::DbaseUpdate(Program& program, QWidget* parent)
    : DownloadForm(program, QStringLiteral("DbaseUpdate"),
                   {.heading = tr("Download UK lottery draws"),
                    .instruction = tr("2. Click the Download button when ready."),
                    .download = tr(" Download draws databases "),
                    .saveQuestion = tr("Are you sure you want to change the URLs?    ")},
                   parent) {
    const std::array titles = {tr("Lotto:"), tr("Thunderball:"), tr("Daily Play:"),
                               tr("Lotto Extra:"), tr("Hot Picks:")};
    for (int i = 0; i < setting::ukDownloads; ++i) {
        AddAddress(Member(QStringLiteral("Text1"), i), Member(QStringLiteral("Label6"), i),
                   titles.at(static_cast<std::size_t>(i)), setting::UkDownloadAddresses + i);
    }
    auto* addresses = new QVBoxLayout;
    addresses->addLayout(MakeAddresses());
    addresses->addStretch(1);
    auto* tabs = Named(new QTabWidget, QStringLiteral("SSTab1"));
    tabs->setAccessibleName(tr("Download or URLs"));
    tabs->addTab(TabOf(MakeProgress()), tr("Download"));
    tabs->addTab(TabOf(addresses), tr("URLs"));
    auto* body = new QVBoxLayout;
    body->addWidget(tabs, 1);
    LayOut(body);
}

bool DbaseUpdate::MayDownload() {
    if (BritishDates(services().region)) return true;
    services().messages.Show(
        this, {.title = tr("Warning!"),
               .text = tr("Please set the region to United Kingdom in the  ") %
                       ToQString(state().Crlf) % tr("Control Panel to download UK lottery draws."),
               .sign = Sign::Exclamation});
    return false;
}

// The first lottery without a name ends the run.
void DbaseUpdate::DownloadAll() {
    for (int i = 0; !view().Settings(setting::UkDownloadNames + i).empty(); ++i) {
        Announce(tr("Downloading ") % ToQString(view().Settings(setting::UkDownloadNames + i)) %
                 tr(" draws..."));
        DbaseDownload(i);
    }
}

void DbaseUpdate::DbaseDownload(int index) {
    using namespace uk_results;
    const std::string name = view().Settings(setting::UkDownloadNames + index);
    Page page{.lottery = ToQString(name),
              .address = ToQString(view().Settings(setting::UkDownloadAddresses + index)),
              .shortest = shortestPage,
              .workText = WorkText,
              .database = {},
              .convert = {}};
    const auto bytes = Fetch(page);
    if (!bytes) {
        // Kept on purpose: the line has this spelling, no time and no end mark.
        Complain(tr("An error occured downoading ") % ToQString(name));
        return;
    }
    Announce(tr("Processing ") % ToQString(name) % tr(" draws..."));
    const Lottery& lottery = LotteryAt(index);
    const Heading heading{name, DefaultSetting(setting::LinkAddresses + 1)};
    page.database = lottery.file;
    page.convert = [&](const std::string& workText, const std::string& source) {
        return DatabaseText(workText, lottery, heading, Dates(), source);
    };
    Replace(page, *bytes);
    Announce(tr("Updated ") % ToQString(name) % tr(" database."));
}
