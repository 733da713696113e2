// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/WheelFrame.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <span>

#include "platform/forms/ShowTip.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/PastedNumbers.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int longestNumber = 3;
constexpr int boxHeight = 24;
constexpr int inputTip = 6;

const QColor white(255, 255, 255);
const QColor grey(192, 192, 192);

/// The colour of a box says whether it is in use, so it is the same whatever skin or theme.
void Paint(QLineEdit& box, const QColor& background) {
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, background);
    for (const auto role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(role, Qt::black);
    }
    box.setPalette(palette);
}

QLabel* MakeLetter(int group) {
    QLabel* letter =
        MakeLabel(Member(QStringLiteral("Label1"), group + 1), QString(QChar('A' + group)));
    QFont font = letter->font();
    font.setBold(true);
    letter->setFont(font);
    letter->setMinimumWidth(letter->fontMetrics().horizontalAdvance(QLatin1Char('W')));
    letter->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return letter;
}

/// "A 2" for the second box of a group with a letter, "Number 2" without.
QString SpokenName(const BoxGrouping& grouping, int index) {
    if (!grouping.letters) return WheelFrame::tr("Number %1").arg(index + 1);
    return QStringLiteral("%1 %2")
        .arg(QChar('A' + index / grouping.boxesInGroup))
        .arg(index % grouping.boxesInGroup + 1);
}

QStringList NamesIn(std::span<const std::string_view> slots) {
    QStringList names;
    for (const std::string_view name : slots) {
        if (!name.empty()) names += ToQString(name);
    }
    return names;
}

}  // namespace

PlayControlNames WheelControlNames(const QString& help) {
    PlayControlNames names;
    names.help = help;
    names.filters = QStringLiteral("Label6");
    return names;
}

QStringList SizeCaptions(int count, const std::function<std::string(int option)>& caption) {
    QStringList captions;
    for (int option = 0; option < count; ++option) captions << ToQString(caption(option));
    return captions;
}

SkinLabels WheelSkinLabels(const QString& form) {
    const wheels::SkinSlots& colours = wheels::RulesOf(FromQString(form)).skin;
    return {.title = {QStringLiteral("Label7")},
            .body = {QStringLiteral("Label2")},
            .small = NamesIn(colours.small),
            .status = NamesIn(colours.status)};
}

WheelFrame::WheelFrame(Program& program, const PlayFormText& text, const PlayControlNames& names,
                       const BoxGrouping& grouping, int mostLines, QWidget* parent)
    : PlayFrame(program, text, names, mostLines, parent),
      rules_(wheels::RulesOf(FromQString(text.name))),
      sizes_(new OptionGroup(this)),
      prompt_(MakeLabel(QStringLiteral("Label8"), QString())) {
    SetBusyRules(rules_.busy);
    connect(sizes_, &OptionGroup::clicked, this, [this] { SizeChosen(); });
    prompt_->hide();
    Column().addWidget(prompt_);
    Column().addLayout(BuildBoxes(grouping));
    Column().addSpacing(4);
    Column().addLayout(BuildRandomButtons());
}

QLayout* WheelFrame::BuildBoxes(const BoxGrouping& grouping) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    std::vector<QLineEdit*> boxes;
    for (int first = 0; first < rules_.boxes.count; first += grouping.boxesInGroup) {
        const int group = first / grouping.boxesInGroup;
        auto* row = new QHBoxLayout;
        row->setSpacing(4);
        if (grouping.letters) row->addWidget(MakeLetter(group));
        for (int index = first; index < first + grouping.boxesInGroup; ++index) {
            QLineEdit* box = BuildBox(index);
            box->setAccessibleName(SpokenName(grouping, index));
            row->addWidget(box, 1);
            boxes.push_back(box);
        }
        grid->addLayout(row, group / grouping.groupsInRow, group % grouping.groupsInRow);
    }
    DealPastedNumbers(boxes);
    return grid;
}

QLineEdit* WheelFrame::BuildBox(int index) {
    const bool any = rules_.boxes.keys == wheels::BoxKeys::Any;
    auto* box = Named(any ? new QLineEdit : new NumberBox, Member(QStringLiteral("Text1"), index));
    box->setMaxLength(longestNumber);
    box->setAlignment(Qt::AlignCenter);
    box->setMinimumHeight(boxHeight);
    // A box asks for the room of three digits and no more, as many stand in a row.
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    box->installEventFilter(this);
    inputs_.push_back({.box = box, .inUse = false});
    return box;
}

QLayout* WheelFrame::BuildRandomButtons() {
    randomSelection_ = MakeButton(QStringLiteral("Command12"), tr("Random selection"));
    randomOrder_ = MakeButton(QStringLiteral("Command8"), tr("Random order"));
    connect(randomSelection_, &QPushButton::clicked, this, [this] { Change(rules_.boxes.select); });
    connect(randomOrder_, &QPushButton::clicked, this, [this] { Change(rules_.boxes.mix); });
    auto* row = new QHBoxLayout;
    row->addWidget(randomSelection_);
    row->addWidget(randomOrder_);
    return row;
}

void WheelFrame::AddSizes(const QStringList& captions) {
    for (int option = 0; option < captions.size(); ++option) {
        BesideList().addWidget(
            sizes_->Add(Member(QStringLiteral("Option1"), option), captions[option]));
    }
    BesideList().addStretch(1);
}

void WheelFrame::SetSizeCaptions(const QStringList& captions) {
    for (int option = 0; option < captions.size(); ++option) {
        sizes_->Option(option).setText(captions[option]);
    }
}

int WheelFrame::Size() const { return sizes_->Index(); }

void WheelFrame::Load() {
    SizeChosen();
    PlayFrame::Load();
}

SkinLabels WheelFrame::SkinnedLabels() const { return WheelSkinLabels(objectName()); }

void WheelFrame::UseBoxes(int count) {
    wheels::Boxes boxes = Read();
    wheels::ChooseSize(boxes, count, rules_.boxes.unusedTexts);
    Write(boxes);
}

void WheelFrame::SetPrompt(const std::string& text) {
    prompt_->setText(ToQString(text));
    prompt_->show();
}

wheels::Boxes WheelFrame::Read() const {
    wheels::Boxes boxes;
    for (const auto& [box, inUse] : inputs_) {
        boxes.push_back({.text = FromQString(box->text()), .inUse = inUse});
    }
    return boxes;
}

void WheelFrame::Write(const wheels::Boxes& boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        auto& [box, inUse] = inputs_[i];
        inUse = boxes[i].inUse;
        const std::string& text = boxes[i].text;
        if (FromQString(box->text()) != text) box->setText(ToQString(text));
        Paint(*box, inUse ? white : grey);
        box->setFocusPolicy(inUse ? Qt::StrongFocus : Qt::ClickFocus);
        box->setEnabled(inUse || !rules_.boxes.unusedDisabled);
    }
}

void WheelFrame::Change(void (*change)(State&, Random&, wheels::Boxes&)) {
    wheels::Boxes boxes = Read();
    change(state(), services().random, boxes);
    Write(boxes);
}

void WheelFrame::DatabaseLoaded() {
    ShowLottery();
    wheels::Boxes boxes = Read();
    wheels::EmptyInvalid(boxes, state().MaxNum);
    Write(boxes);
}

void WheelFrame::MakeLines() {
    wheels::Boxes boxes = Read();
    const wheels::Outcome outcome = MakeWheel(boxes);
    Write(boxes);
    if (outcome == wheels::Outcome::Done) {
        ShowResult();
        return;
    }
    if (outcome == wheels::Outcome::Shown || outcome == wheels::Outcome::Refused) return;
    ShowTip(services(), this, inputTip);
    if (outcome == wheels::Outcome::CheckInput) FocusWrongBox();
}

// The message does not say which number it means; the cursor does.
void WheelFrame::FocusWrongBox() {
    const wheels::Boxes boxes = Read();
    const auto wrong = std::ranges::find_if(boxes, [this](const wheels::Box& box) {
        return box.inUse && !rules_.boxes.accepts(box, state().MaxNum);
    });
    if (wrong == boxes.end()) return;
    QLineEdit& box = *inputs_[static_cast<std::size_t>(wrong - boxes.begin())].box;
    box.setFocus();
    box.selectAll();
}

void WheelFrame::MoveOn(const QObject* from) {
    const auto input = std::ranges::find(inputs_, from, &NumberInput::box);
    if (input == inputs_.end() || input + 1 == inputs_.end()) return;
    QLineEdit& next = *(input + 1)->box;
    if (next.isEnabled()) next.setFocus();
}

// Enter in a box starts nothing, as it would in the rest of the form.
bool WheelFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (rules_.boxes.keys == wheels::BoxKeys::DigitsAndEnter) MoveOn(watched);
            return true;
        }
    }
    return PlayFrame::eventFilter(watched, event);
}
