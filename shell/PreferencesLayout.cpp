// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of Preferences and where they stand.
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"
#include "shell/ColourSample.h"
#include "shell/Preferences.h"

namespace {

constexpr int betweenSections = 28;
constexpr int indent = 6;  // of what stands below a heading, which begins with a blank

struct StrengthText {
    const char* frame;
    const char* options;
    const char* title;
    const char* first;
    const char* second;
};

constexpr std::array<StrengthText, filterStrengths.size()> strengthTexts = {{
    {"Frame1", "Option1", QT_TRANSLATE_NOOP("Preferences", " Odd/Even numbers "),
     QT_TRANSLATE_NOOP("Preferences", "Must have at least 1 odd or even number"),
     QT_TRANSLATE_NOOP("Preferences", "Must have at least 2 odd or even numbers")},
    {"Frame2", "Option2", QT_TRANSLATE_NOOP("Preferences", " High/Low numbers "),
     QT_TRANSLATE_NOOP("Preferences", "Must have at least 1 low or high number"),
     QT_TRANSLATE_NOOP("Preferences", "Must have at least 2 low or high numbers")},
    {"Frame3", "Option3", QT_TRANSLATE_NOOP("Preferences", " Previous draw results "),
     QT_TRANSLATE_NOOP("Preferences", "Must have 1 number different"),
     QT_TRANSLATE_NOOP("Preferences", "Must have 2 numbers different")},
    {"Frame5", "Option4", QT_TRANSLATE_NOOP("Preferences", " Runs of numbers "),
     QT_TRANSLATE_NOOP("Preferences", "No more than 3 consecutive numbers"),
     QT_TRANSLATE_NOOP("Preferences", "No more than 2 consecutive numbers")},
}};

struct SampleText {
    const char* name;
    const char* words;
    const char* toolTip;
};

constexpr std::array<SampleText, colourSlots.size()> sampleTexts = {{
    {"Label5", QT_TRANSLATE_NOOP("Preferences", "Title"),
     QT_TRANSLATE_NOOP("Preferences", " Change title color ")},
    {"Label6", QT_TRANSLATE_NOOP("Preferences", "Main body text"),
     QT_TRANSLATE_NOOP("Preferences", " Change body text color ")},
    {"Label7", QT_TRANSLATE_NOOP("Preferences", "Labels"),
     QT_TRANSLATE_NOOP("Preferences", " Change label color ")},
    {"Label9", QT_TRANSLATE_NOOP("Preferences", "Other text"),
     QT_TRANSLATE_NOOP("Preferences", " Change other text color ")},
    {"Label8", nullptr, QT_TRANSLATE_NOOP("Preferences", " Change background color ")},
}};

QLabel* MakeHeading(const QString& name, const QString& text) {
    QLabel* heading = MakeLabel(name, text);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

/// A heading with what stands below it.
QVBoxLayout* Section(QLayout* heading) {
    auto* section = new QVBoxLayout;
    section->setSpacing(6);
    section->addLayout(heading);
    return section;
}

QLayout* Indented(QLayout* layout) {
    layout->setContentsMargins(indent, 0, 0, 0);
    return layout;
}

/// A heading that has its "Enable" beside it; a screen reader speaks both.
QLayout* HeadingWithBox(QLabel* heading, QCheckBox* box) {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(heading);
    row->addWidget(box);
    row->addStretch(1);
    box->setAccessibleName(heading->text().trimmed() % QLatin1Char(' ') % box->text());
    return row;
}

QLayout* HeadingAlone(QLabel* heading) {
    auto* row = new QHBoxLayout;
    row->addWidget(heading, 1);
    return row;
}

}  // namespace

Preferences::Preferences(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("Preferences"), tr("Preferences"), parent) {
    auto* right = new QVBoxLayout;
    right->setSpacing(betweenSections * 2 / 3);
    right->addLayout(MakeLinks());
    right->addLayout(MakePictures());
    right->addLayout(MakeColours());
    right->addStretch(1);
    // So narrow that with large letters it need not be scrolled sideways.
    auto* columns = new QHBoxLayout;
    columns->setSpacing(betweenSections);
    columns->addLayout(MakeFilters(), 2);
    columns->addLayout(right, 3);
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(columns, 1);
    layout->addSpacing(8);
    layout->addLayout(MakeActions());
    TabInReadingOrder();
    SetOpeningSize({980, 0});
}

QLayout* Preferences::MakeFilters() {
    auto* section = Section(
        HeadingAlone(MakeHeading(QStringLiteral("Label4"), tr(" Set the filter parameters:"))));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(6);
    texts->addWidget(
        MakeBody(QStringLiteral("Label13"),
                 tr("Some lottery entries are unlikely, like 1, 2, 3, 4, 5, 6. There are six "
                    "consecutive numbers, and all six numbers are very low, making it a poor "
                    "choice on both counts.")));
    texts->addWidget(
        MakeBody(QStringLiteral("Label15"),
                 tr("Lottery Quillon can avoid bad selections like this when generating lottery "
                    "entries, or you can filter them out afterwards. The options here set the "
                    "strength of the filters.")));
    section->addLayout(Indented(texts));
    section->addSpacing(4);
    auto* frames = new QVBoxLayout;
    frames->setSpacing(8);
    for (std::size_t i = 0; i < strengths_.size(); ++i) frames->addWidget(MakeStrength(i));
    section->addLayout(Indented(frames));
    section->addStretch(1);
    return section;
}

QWidget* Preferences::MakeStrength(std::size_t filter) {
    const StrengthText& text = strengthTexts.at(filter);
    auto* frame = Named(new QGroupBox(tr(text.title)), QString::fromLatin1(text.frame));
    const QString name = QString::fromLatin1(text.options);
    auto* options = new OptionGroup(this);
    auto* rows = new QVBoxLayout(frame);
    rows->setSpacing(4);
    rows->addWidget(options->Add(Member(name, 0), tr(text.first)));
    rows->addWidget(options->Add(Member(name, 1), tr(text.second)));
    strengths_.at(filter) = options;
    return frame;
}

QLayout* Preferences::MakeLinks() {
    auto* section = Section(HeadingAlone(
        MakeHeading(QStringLiteral("Label14"), tr(" Edit the items on the WebLinks menu:"))));
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(8);
    rows->setVerticalSpacing(6);
    for (int i = 0; i < changeableLinks; ++i) {
        auto* menu = MakeLabel(Member(QStringLiteral("Label2"), i), tr("Menu:"));
        auto* address = MakeLabel(Member(QStringLiteral("Label3"), i), tr("URL:"));
        auto* captionBox = Named(new QLineEdit, Member(QStringLiteral("Text1"), i));
        auto* addressBox = Named(new QLineEdit, Member(QStringLiteral("Text2"), i));
        captionBox->setAccessibleName(tr("Menu, link %1").arg(i + 1));
        addressBox->setAccessibleName(tr("URL, link %1").arg(i + 1));
        rows->addWidget(menu, i, 0);
        rows->addWidget(captionBox, i, 1);
        rows->addWidget(address, i, 2);
        rows->addWidget(addressBox, i, 3);
        captions_.at(static_cast<std::size_t>(i)) = captionBox;
        addresses_.at(static_cast<std::size_t>(i)) = addressBox;
    }
    rows->setColumnStretch(1, 2);
    rows->setColumnStretch(3, 3);
    section->addLayout(Indented(rows));
    section->addStretch(1);
    return section;
}

QLayout* Preferences::MakePictures() {
    pictures_ = Named(new QCheckBox(tr("Enable")), QStringLiteral("Check4"));
    auto* section = Section(HeadingWithBox(
        MakeHeading(QStringLiteral("Label1"), tr(" Add background images:")), pictures_));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(6);
    texts->addWidget(MakeBody(Member(QStringLiteral("Label11"), 0),
                              tr("All forms on the same  menu use the same background image. "
                                 "Replace them (in the program folder) with your own images:")));
    texts->addWidget(MakeBody(Member(QStringLiteral("Label11"), 1),
                              tr("SkinPlay.jpg, SkinDatabases.jpg, SkinAnalyse.jpg, SkinFile.jpg, "
                                 "SkinSyndicates.jpg, SkinHelp.jpg, SkinMain.jpg.")));
    section->addLayout(Indented(texts));
    section->addStretch(1);
    return section;
}

QLayout* Preferences::MakeColours() {
    colours_ = Named(new QCheckBox(tr("Enable")), QStringLiteral("Check1"));
    coloursTitle_ = MakeHeading(QStringLiteral("Label10"), tr(" Change the colors:"));
    auto* section = Section(HeadingWithBox(coloursTitle_, colours_));
    pickPrompt_ =
        MakeLabel(QStringLiteral("Label12"), tr("Click an element and pick a new color:"));
    auto* samples = new QHBoxLayout;
    samples->setSpacing(6);
    for (std::size_t i = 0; i < samples_.size(); ++i) samples->addWidget(MakeSample(i));
    auto* reset = MakeButton(QStringLiteral("Command9"), tr("Reset"));
    reset->setToolTip(tr(" Set colors back to the defaults "));
    connect(reset, &QPushButton::clicked, this, [this] { ResetTheColours(); });
    samples->addSpacing(6);
    samples->addWidget(reset);
    samples->addStretch(1);
    auto* below = new QVBoxLayout;
    below->setSpacing(6);
    below->addWidget(pickPrompt_);
    below->addLayout(samples);
    section->addLayout(Indented(below));
    section->addStretch(1);
    return section;
}

ColourSample* Preferences::MakeSample(std::size_t colour) {
    const SampleText& text = sampleTexts.at(colour);
    auto* sample =
        new ColourSample(QString::fromLatin1(text.name),
                         text.words == nullptr ? QString() : tr(text.words), tr(text.toolTip));
    connect(sample, &ColourSample::clicked, this, [this, colour] { ChangeColour(colour); });
    samples_.at(colour) = sample;
    return sample;
}

QLayout* Preferences::MakeActions() {
    auto* save =
        MakeCommandButton(QStringLiteral("Command7"), Command::Save, tr(" Save the settings "));
    save->setDefault(true);
    auto* resetAll = MakeButton(QStringLiteral("Command12"), tr("Reset all program defaults"));
    resetAll->setMinimumWidth(resetAll->sizeHint().width() + indent * 2);
    resetAll->setToolTip(tr(" Set colors, filters etc. back to defaults "));
    auto* close = MakeCommandButton(QStringLiteral("Command1"), Command::Close,
                                    tr(" Close and discard changes "));
    SetCloseButton(close);
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(resetAll, &QPushButton::clicked, this, [this] { ResetAll(); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    auto* row = BuildActionRow({save, resetAll}, {close});
    row->insertSpacing(1, betweenSections);
    return row;
}
