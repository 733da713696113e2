// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdateW.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/database_summary.h"
#include "core/draw_database.h"
#include "core/failure.h"
#include "databases/draw_records.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/LotteryList.h"
#include "platform/forms/ShowTip.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/AddressTip.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int newestCount = 3;
constexpr double smallPrint = 0.9;

}  // namespace

DbaseUpdateW::DbaseUpdateW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("DbaseUpdateW"), tr("Update lottery databases"), parent) {
    auto* title = MakeTitle(QStringLiteral("Label5"), tr("Update lottery draws"));
    auto* explanation =
        MakeBody(QStringLiteral("Label11"),
                 tr("Draw results are stored by date and it is very important to set it "
                    "correctly. You can enter a draw for any date and it will be inserted "
                    "in the right place."));
    auto* columns = new QHBoxLayout;
    columns->addLayout(MakeLotteries(), 2);
    columns->addSpacing(24);
    columns->addLayout(MakeDraw(), 3);
    LayOutForm(this, title, explanation, columns, MakeActions());
    TabInReadingOrder();
    SetOpeningSize({760, 420});
}

QLayout* DbaseUpdateW::MakeLotteries() {
    auto* title = MakeLabel(QStringLiteral("Label8"), tr("Select Lottery:"));
    lotteries_ = Titled(title, Named(new ListBox, QStringLiteral("List1")));
    connect(lotteries_, &ListBox::clicked, this, [this] { ChooseLottery(); });
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(lotteries_, 1);
    return column;
}

QLayout* DbaseUpdateW::MakeDraw() {
    auto* dateTitle = MakeLabel(QStringLiteral("Label4"), tr("Select Date:"));
    date_ = Titled(dateTitle,
                   Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                         QStringLiteral("DTPicker1")));
    connect(date_, &DatePicker::dateChanged, this, [this] { ShowWhetherDateIsTaken(); });
    takenDate_ = Named(new ElidingLabel, QStringLiteral("TakenDate"));
    lastUpdate_ = Named(new ElidingLabel, QStringLiteral("Label13"));
    lastUpdate_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Two lines at first, one after a save: nothing below it is to move.
    lastUpdate_->setMinimumHeight(2 * lastUpdate_->fontMetrics().lineSpacing());
    auto* boxesTitle = MakeLabel(QStringLiteral("Label6"), tr("Enter lottery draw result:"));
    lastBoxTitle_ = MakeLabel(QStringLiteral("Label7"), QString());
    boxes_ = MakeDrawBoxes(0);
    newestDraws_ = Named(new ElidingLabel, QStringLiteral("NewestDraws"));
    QFont small = newestDraws_->font();
    small.setPointSizeF(small.pointSizeF() * smallPrint);
    newestDraws_->setFont(small);

    auto* date = new QHBoxLayout;
    date->addWidget(date_);
    date->addSpacing(8);
    date->addWidget(takenDate_, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(dateTitle);
    column->addLayout(date);
    column->addSpacing(12);
    column->addWidget(lastUpdate_);
    column->addSpacing(12);
    column->addLayout(BuildDrawBoxes(boxesTitle, lastBoxTitle_, boxes_));
    column->addSpacing(12);
    column->addWidget(newestDraws_);
    column->addStretch(1);
    return column;
}

QLayout* DbaseUpdateW::MakeActions() {
    auto* save = WithKeysOf(
        Command::Save, MakeButton(QStringLiteral("Command1"), tr(" Save lottery draw result ")));
    save->setDefault(true);
    auto* goToWebsite = MakeButton(QStringLiteral("Command2"), tr("Go to website"));
    goToWebsite->setToolTip(tr(" Start Intenet Explorer "));
    goToWebsite->setMinimumWidth(112);
    website_ = new AddressTip(goToWebsite);
    auto* close = MakeButton(QStringLiteral("CancelButton"), tr(" Close "));
    SetCloseButton(close);
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(goToWebsite, &QPushButton::clicked, this,
            [this] { services().openPage(ToQString(state().LotteryURL)); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    return BuildActionRow({save, goToWebsite}, {close});
}

void DbaseUpdateW::Load() {
    Skinning(QStringLiteral("SkinDatabases.jpg"),
             {.title = {QStringLiteral("Label5")},
              .body = {QStringLiteral("Label11")},
              .small = {QStringLiteral("Label8"), QStringLiteral("Label4"),
                        QStringLiteral("Label6"), QStringLiteral("Label7")},
              .status = {QStringLiteral("Label13"), QStringLiteral("TakenDate"),
                         QStringLiteral("NewestDraws")}});
    date_->SetValue(services().today());
    ListDatabases(program(), *lotteries_);
    ChooseFirstLottery(*lotteries_);
}

void DbaseUpdateW::ChooseLottery() {
    LoadDatabaseHeader(state(), folder(), static_cast<std::int16_t>(lotteries_->Index()));
    const NewestDraw newest = ReadNewestDraw(state(), folder());
    lastUpdate_->setText(tr("Last update was") % ToQString(state().Crlf) % ToQString(newest.date));
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->clear();
        boxes_[i]->setVisible(newest.filled[i]);
    }
    website_->SetAddress(ToQString(state().LotteryURL));
    lastBoxTitle_->clear();
    if (state().HasBonus > 0) lastBoxTitle_->setText(tr("Bonus"));
    if (state().MaxPball > 0) lastBoxTitle_->setText(tr("Powerball"));
    ReadDraws();
}

void DbaseUpdateW::ReadDraws() {
    const std::string content = folder().Read(state().DbaseFile);
    const std::vector<std::string_view> draws = DrawLines(content);
    const Date today = services().today();
    takenDates_.clear();
    for (const std::string_view draw : draws) {
        if (const auto date = DateOfLine(draw, services().region, today))
            takenDates_.push_back(*date);
    }
    ShowWhetherDateIsTaken();
    ShowNewestDraws(draws);
}

void DbaseUpdateW::ShowWhetherDateIsTaken() {
    const bool taken = std::ranges::find(takenDates_, date_->Value()) != takenDates_.end();
    takenDate_->setText(taken ? tr("There is a draw of this date already") : QString());
}

void DbaseUpdateW::ShowNewestDraws(const std::vector<std::string_view>& draws) {
    const std::string lastTitle = FromQString(lastBoxTitle_->text());
    QStringList lines = {tr("Newest draws:")};
    for (const std::string_view draw : draws) {
        if (lines.size() > newestCount) break;
        lines += ToQString(draw.substr(0, draw.find(','))) % QStringLiteral(":  ") %
                 ToQString(NumbersInWords(draw, lastTitle));
    }
    newestDraws_->setText(lines.join(QLatin1Char('\n')));
}

void DbaseUpdateW::Save() {
    if (NumberBox* wrong = FirstWrongBox()) {
        ShowTip(services(), this, 6);
        LeadTo(*wrong);
        return;
    }
    const DrawRecord draw = MakeDrawRecord(date_->Value(), TextsOf(boxes_));
    InsertDraw(state(), folder(), draw, {.region = services().region, .today = services().today()});
    for (NumberBox* box : boxes_) box->clear();
    lastUpdate_->setText(ToQString(DrawDate(draw.date)));
    ReadDraws();
    LeadTo(*boxes_.front());
    Say(tr("Draw of %1 saved: %2")
            .arg(ToQString(DrawDate(draw.date)),
                 ToQString(NumbersInWords(draw.text, FromQString(lastBoxTitle_->text())))));
}

NumberBox* DbaseUpdateW::FirstWrongBox() const {
    const int picks = std::max(state().Picks, 0);
    if (picks > std::ssize(boxes_)) {
        throw FailureInFile(state().DbaseFile, 3,
                            "expected at most " + std::to_string(boxes_.size()) +
                                " numbers to pick, but " + std::to_string(picks) +
                                " stands there.");
    }
    return FirstOutside(boxes_, picks, state().MaxNum);
}
