// SPDX-License-Identifier: GPL-3.0-or-later
// The measurements of PrintSetup: what they are called and where they stand.
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"
#include "printing/PrintSetup.h"
#include "printing/SlipView.h"

namespace {

constexpr int boxWidth = 64;

struct MeasureControl {
    const char* array;
    int index;  // -1: no array
    const char* initial;
    const char* label;
};

constexpr const char* horizontal = QT_TRANSLATE_NOOP("PrintSetup", "Horizontal:");
constexpr const char* vertical = QT_TRANSLATE_NOOP("PrintSetup", "Vertical:");

// In the order of `Measure`.
constexpr std::array<MeasureControl, measureCount> measureControls = {{
    {"Text1", 0, "3", QT_TRANSLATE_NOOP("PrintSetup", "Width:")},
    {"Text1", 1, "2", QT_TRANSLATE_NOOP("PrintSetup", "Height:")},
    {"Text7", 0, "5", QT_TRANSLATE_NOOP("PrintSetup", "Across:")},
    {"Text7", 1, "1", QT_TRANSLATE_NOOP("PrintSetup", "Down:")},
    {"Text9", -1, "12", ""},
    {"Text2", 2, "4", ""},
    {"Text6", 2, "38.2", horizontal},
    {"Text6", 3, "71.5", vertical},
    {"Text2", 3, "42.1", horizontal},
    {"Text2", 4, "27.3", vertical},
    {"Text6", 0, "3.8", horizontal},
    {"Text6", 1, "6.39", vertical},
    {"Text2", 5, "3.8", horizontal},
    {"Text2", 6, "6.39", vertical},
    {"Text8", 0, "28.1", horizontal},
    {"Text8", 1, "0", vertical},
    {"Text2", 0, "3.0", horizontal},
    {"Text2", 1, "5.5", vertical},
}};

struct MeasureFrame {
    const char* name;
    const char* title;
    Measure first;
    int count;
};

// Two a row; the titles of the two kinds of number stand between the second row and the third.
constexpr std::array<MeasureFrame, 10> measureFrames = {{
    {"MarkFrame", QT_TRANSLATE_NOOP("PrintSetup", "Size of mark (mm)"), Measure::MarkWidth, 2},
    {"BoardsFrame", QT_TRANSLATE_NOOP("PrintSetup", "Number of boards"), Measure::BoardsAcross, 2},
    {"MarginFrame", QT_TRANSLATE_NOOP("PrintSetup", "Printer margin (mm)"), Measure::MarginX, 2},
    {"BoardStepFrame", QT_TRANSLATE_NOOP("PrintSetup", "Board separation (mm)"),
     Measure::BoardStepX, 2},
    {"PerRowFrame", QT_TRANSLATE_NOOP("PrintSetup", "Numbers per row"), Measure::NumbersPerRow, 1},
    {"ExtraPerRowFrame", QT_TRANSLATE_NOOP("PrintSetup", "Numbers per row"), Measure::ExtrasPerRow,
     1},
    {"FirstFrame", QT_TRANSLATE_NOOP("PrintSetup", "Number 1 (mm)"), Measure::FirstNumberX, 2},
    {"ExtraFirstFrame", QT_TRANSLATE_NOOP("PrintSetup", "Number 1 (mm)"), Measure::FirstExtraX, 2},
    {"StepFrame", QT_TRANSLATE_NOOP("PrintSetup", "Number separation (mm)"), Measure::NumberStepX,
     2},
    {"ExtraStepFrame", QT_TRANSLATE_NOOP("PrintSetup", "Number separation (mm)"),
     Measure::ExtraStepX, 2},
}};
constexpr int framesAboveTitles = 4;

QLabel* MakeBold(QLabel* label) {
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

/// A layout of numbers in small type, all of its lines in sight.
QLabel* MakeSmall(const QString& name, const QString& text) {
    QLabel* label = MakeLabel(name, text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 0.85);
    label->setFont(font);
    label->setMinimumHeight(3 * QFontMetrics(font).lineSpacing());
    return label;
}

}  // namespace

QLayout* PrintSetup::MakeMeasures() {
    auto* measures = new QGridLayout;
    measures->setHorizontalSpacing(12);
    measures->setVerticalSpacing(6);
    measures->addWidget(MakeOrientation(), 0, 0, 1, 2);
    int row = 1;
    for (int frame = 0; frame < static_cast<int>(measureFrames.size()); ++frame) {
        if (frame == framesAboveTitles) {
            measures->addWidget(
                MakeBold(MakeLabel(Member(QStringLiteral("Label2"), 0), tr("Main numbers"))), row,
                0);
            measures->addWidget(
                MakeBold(MakeLabel(Member(QStringLiteral("Label2"), 1), tr("Powerball"))), row++,
                1);
        }
        measures->addWidget(MakeFrame(frame), row, frame % 2);
        if (frame % 2 == 1) ++row;
    }
    hint_ = Named(new ElidingLabel, QStringLiteral("MeasureHint"));
    measures->addWidget(hint_, row, 0, 1, 2);
    slip_ = Named(new SlipView, QStringLiteral("SlipView"));
    slip_->setAccessibleName(tr("What a test print marks"));
    measures->addWidget(slip_, row + 1, 0, 1, 2);
    measures->setRowStretch(row + 1, 1);
    return measures;
}

QGroupBox* PrintSetup::MakeOrientation() {
    auto* frame = Named(new QGroupBox(tr(" Orientation ")), QStringLiteral("Frame1"));
    orientation_ = new OptionGroup(this);
    auto* portrait = orientation_->Add(Member(QStringLiteral("Option1"), 0), tr("Portrait"));
    auto* landscape = orientation_->Add(Member(QStringLiteral("Option1"), 1), tr("Landscape"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(portrait, 0, Qt::AlignTop);
    row->addWidget(MakeSmall(QStringLiteral("Label5"), tr("[1 ] [2] [3]\n[4] [5] [6]\n[7] [8]...")),
                   1);
    row->addWidget(landscape, 0, Qt::AlignTop);
    row->addWidget(MakeSmall(QStringLiteral("Label7"), tr("[3] [6]...\n[2] [5]...\n[1 ] [4]...")),
                   1);
    // Only side by side in the frame does the choice of one take away the other.
    landscape->setChecked(true);
    return frame;
}

QGroupBox* PrintSetup::MakeFrame(int frame) {
    const MeasureFrame& told = measureFrames.at(static_cast<std::size_t>(frame));
    auto* group = Named(new QGroupBox(tr(told.title)), QString::fromLatin1(told.name));
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(9, 4, 9, 6);
    for (int i = 0; i < told.count; ++i) {
        const std::size_t place =
            static_cast<std::size_t>(told.first) + static_cast<std::size_t>(i);
        const MeasureControl& control = measureControls.at(place);
        const QString array = QString::fromLatin1(control.array);
        auto* box = Named(new QLineEdit(QString::fromLatin1(control.initial)),
                          control.index < 0 ? array : Member(array, control.index));
        box->setFixedWidth(boxWidth);
        const QString label = *control.label == '\0' ? QString() : tr(control.label);
        box->setAccessibleName(tr(told.title) % QLatin1Char(' ') % label);
        if (frame >= framesAboveTitles) {
            box->setAccessibleDescription(frame % 2 == 0 ? tr("Main numbers") : tr("Powerball"));
        }
        if (!label.isEmpty())
            row->addWidget(MakeLabel(box->objectName() % QLatin1String("Title"), label));
        row->addWidget(box);
        connect(box, &QLineEdit::textChanged, this, [this] { FollowMeasures(); });
        measures_.at(place) = box;
    }
    row->addStretch(1);
    return group;
}
