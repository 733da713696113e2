// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DownloadForm.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <limits>

#include "core/failure.h"
#include "core/old_files.h"
#include "core/settings.h"
#include "core/text.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr std::string_view downloadWorkFile = "Temp.txt";
constexpr int tenthOfASecond = 100;
constexpr int longTenths = 20;

}  // namespace

DownloadForm::DownloadForm(Program& program, const QString& name, const Words& words,
                           QWidget* parent)
    : Form(program, name, tr("Update lottery databases"), parent),
      saveQuestion_(words.saveQuestion),
      heading_(words.heading),
      instruction_(words.instruction),
      download_(WithKeysOf(Command::Generate,
                           MakeButton(QStringLiteral("OKButton"), words.download, this))),
      close_(MakeButton(QStringLiteral("CancelButton"), tr(" Close "), this)),
      progress_(Named(new ListBox(this), QStringLiteral("List2"))),
      timer_(Named(new QTimer(this), QStringLiteral("Timer1"))) {
    download_->setDefault(true);
    timer_->setInterval(tenthOfASecond);
    progress_->SetTips([this](int row) {
        const QListWidgetItem& line = *progress_->item(row);
        const QString reason = line.data(Qt::AccessibleDescriptionRole).toString();
        return reason.isEmpty() ? line.text() : reason;
    });
    SetCloseButton(close_);
    connect(download_, &QPushButton::clicked, this, [this] { Download(); });
    connect(close_, &QPushButton::clicked, this, [this] { Unload(); });
    connect(timer_, &QTimer::timeout, this, [this] { Tick(); });
}

void DownloadForm::LayOut(QLayout* body) {
    auto* steps = new QVBoxLayout;
    steps->setSpacing(4);
    steps->addWidget(
        MakeLabel(QStringLiteral("Label1"), tr("1. Connect to the Internet in the usual way.")));
    steps->addWidget(MakeLabel(QStringLiteral("Label3"), instruction_));
    steps->addSpacing(8);
    steps->addLayout(body, 1);
    auto* notice = MakeBody(
        QStringLiteral("Label4"),
        tr("This is a free service for the general public provided by the lottery organiser. It is "
           "not under our control and could be changed or discontinued. However, we have found it "
           "to be reliable and useful. The latest results are not always immediately available, so "
           "try again later if there are problems. Security software can block this feature!"));
    LayOutForm(this, MakeTitle(QStringLiteral("Label5"), heading_), notice, steps,
               BuildActionRow({}, {close_}));
    SetOpeningSize({640, 560});
}

QLayout* DownloadForm::MakeProgress() {
    auto* title = MakeLabel(QStringLiteral("Label2"), tr("Progress:"));
    Titled(title, progress_)->setMinimumHeight(72);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(download_);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addLayout(buttons);
    column->addSpacing(8);
    column->addWidget(title);
    column->addWidget(progress_, 1);
    return column;
}

void DownloadForm::AddAddress(const QString& boxName, const QString& labelName,
                              const QString& title, int slot) {
    auto* label = MakeLabel(labelName, title);
    addresses_.push_back({slot, Titled(label, Named(new QLineEdit, boxName)), label});
}

QLayout* DownloadForm::MakeAddresses() {
    auto* save =
        WithKeysOf(Command::Save, MakeButton(QStringLiteral("Command7"), tr(" Save URLs "), this));
    connect(save, &QPushButton::clicked, this, [this] { SaveAddresses(); });
    auto* grid = new QGridLayout;
    int row = 0;
    for (const Address& address : addresses_) {
        grid->addWidget(address.label, row, 0);
        grid->addWidget(address.box, row++, 1);
    }
    grid->addWidget(save, row, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return grid;
}

SkinLabels DownloadForm::Labels() const {
    return {.title = {QStringLiteral("Label5")},
            .body = {QStringLiteral("Label4")},
            .small = {},
            .status = {QStringLiteral("Label1"), QStringLiteral("Label3")}};
}

void DownloadForm::Load() {
    Skinning(QStringLiteral("SkinDatabases.jpg"), Labels());
    for (const Address& address : addresses_) {
        address.box->setText(ToQString(view().Settings(address.slot)));
        address.box->setCursorPosition(0);
    }
}

void DownloadForm::SaveAddresses() {
    const Message question{.title = tr("Update URLs"),
                           .text = saveQuestion_,
                           .sign = Sign::Question,
                           .buttons = Buttons::YesNo};
    if (services().messages.Show(this, question) == Answer::No) return;
    for (const Address& address : addresses_) {
        state().Settings(address.slot) = Trim(FromQString(address.box->text()));
    }
    SaveSettings(state(), folder());
    services().messages.Show(this, {.title = tr("Saved"), .text = tr("URLs updated.    ")});
}

// The download button stays disabled: one opening makes one run.
void DownloadForm::Download() {
    if (!MayDownload()) return;
    const Hourglass hourglass;
    elapsedTenths_ = 0;
    timer_->start();
    progress_->setFocus();
    download_->setEnabled(false);
    close_->setEnabled(false);
    DownloadAll();
    Announce(tr("Finished..."));
    close_->setEnabled(true);
    timer_->stop();
}

void DownloadForm::Tick() {
    if (elapsedTenths_ == std::numeric_limits<std::int16_t>::max()) {
        throw Failure("The download takes longer than its clock can count, 3276.7 seconds.");
    }
    ++elapsedTenths_;
}

void DownloadForm::Announce(const QString& text) {
    progress_->addItem(text % QString::number(elapsedTenths_ / 10.0, 'f', 1) % tr(" sec"));
    progress_->SetIndex(progress_->count() - 1);
}

void DownloadForm::Complain(const QString& text) {
    progress_->addItem(text);
    progress_->item(progress_->count() - 1)->setData(Qt::AccessibleDescriptionRole, reason_);
}

std::optional<std::string> DownloadForm::Fetch(const Page& page) {
    saidTenths_ = elapsedTenths_;
    FetchedPage fetched =
        services().fetchPage(page.address, [this](qsizetype bytes) { SayReceived(bytes); });
    if (fetched.bytes.size() >= page.shortest) {
        Say({});
        return std::move(fetched.bytes);
    }
    reason_ = fetched.problem.isEmpty()
                  ? tr("A page of %1 bytes is too short to hold draws.").arg(fetched.bytes.size())
                  : fetched.problem;
    Say(page.lottery % tr(": ") % reason_);
    return std::nullopt;
}

void DownloadForm::SayReceived(qsizetype bytes) {
    constexpr qsizetype kilobyte = 1024;
    if (elapsedTenths_ - saidTenths_ < longTenths) return;
    saidTenths_ = elapsedTenths_;
    Say(tr("%1 KB so far").arg(bytes / kilobyte));
}

void DownloadForm::Replace(const Page& page, const std::string& bytes) {
    const std::string workText = page.workText(bytes);
    folder().Write(downloadWorkFile, workText);
    QCoreApplication::processEvents();
    const std::string source =
        std::string(downloadWorkFile) + " (" + FromQString(page.address) + ")";
    WriteKeepingOld(folder(), page.database, page.convert(workText, source));
    QCoreApplication::processEvents();
}

DateRules DownloadForm::Dates() const {
    return {.region = services().region, .today = services().today()};
}
