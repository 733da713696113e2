// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/lines_form.h"

#include <QAbstractButton>
#include <string>

#include "core/settings.h"
#include "platform/widgets/Lists.h"

LinesFormTest::LinesFormTest() {
    test_.services.saveLines = [this](QWidget*, Grid&) { ++saves_; };
}

void LinesFormTest::ShowForm(std::unique_ptr<Form> form) {
    form_ = std::move(form);
    form_->Load();
    form_->show();
}

int LinesFormTest::ShownLines() {
    int count = 0;
    while (!Lines().Cell(count + 1, 1).isEmpty()) ++count;
    return count;
}

QStringList LinesFormTest::Texts() {
    QStringList texts;
    for (int row = 1; row < Lines().RowCount(); ++row) {
        for (int column = 0; column < 9; ++column) texts << Lines().Cell(row, column);
    }
    return texts;
}

std::vector<std::vector<int>> LinesFormTest::Rows(int columns) {
    std::vector<std::vector<int>> rows;
    for (int row = 1; row <= ShownLines(); ++row) {
        std::vector<int>& line = rows.emplace_back();
        for (int column = 1; column <= columns; ++column) {
            line.push_back(Lines().Cell(row, column).toInt());
        }
    }
    return rows;
}

QColor LinesFormTest::TextColour(const char* label) {
    return Label(label).palette().color(QPalette::WindowText);
}

void LinesFormTest::ExpectLabels(const Words& words) {
    for (const auto& [name, text] : words) {
        EXPECT_EQ(Text(name), QString::fromLatin1(text)) << name;
    }
}

void LinesFormTest::ExpectCaptions(const Words& words) {
    for (const auto& [name, text] : words) {
        EXPECT_EQ(Find<QAbstractButton>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
}

void LinesFormTest::ExpectFrameWords(const FilterNames& filters, const char* help) {
    ExpectLabels({{lotteryPrompt, "Select a lottery:"}});
    ExpectCaptions({{filters.oddEven, "Odd/even"},
                    {filters.highLow, "High/low"},
                    {filters.longRuns, "Long runs"},
                    {filters.previousDraws, "Previous draws"},
                    {help, " Help "}});
    const Words toolTips = {{generateButton, "Generate another selection of lottery entries"},
                            {printButton, "Print out the lottery entries"},
                            {saveButton, "Save these lottery entries to disk"},
                            {closeButton, " Close "}};
    for (const auto& [name, text] : toolTips) {
        EXPECT_EQ(Find<QWidget>(*form_, name)->toolTip(), QString::fromLatin1(text)) << name;
    }
}

void LinesFormTest::MakeOnlyLine(const std::vector<int>& numbers) {
    test_.state.Lines.Fill(0);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        test_.state.Lines(1, static_cast<int>(i) + 1) = static_cast<std::int16_t>(numbers[i]);
    }
}

void LinesFormTest::ExpectFiltersTakeLinesOut(const FilterNames& filters) {
    // Each line fails the one filter and passes the other three.
    const std::vector<std::pair<const char*, std::vector<int>>> failing = {
        {filters.oddEven, {2, 4, 6, 30, 40, 42}},
        {filters.highLow, {31, 33, 36, 38, 40, 41}},
        {filters.longRuns, {1, 2, 3, 4, 30, 40}},
        {filters.previousDraws, {3, 17, 22, 34, 41, 48}}};
    for (const auto& [button, numbers] : failing) {
        MakeOnlyLine({2, 9, 16, 29, 33, 44});
        Click(*form_, button);
        EXPECT_EQ(ShownLines(), 1) << button << " keeps a line that complies";
        MakeOnlyLine(numbers);
        Click(*form_, button);
        EXPECT_EQ(ShownLines(), 0) << button << " removes a line that fails";
    }
}

void LinesFormTest::TakeSkinColours(const char* background) {
    test_.state.Settings(setting::SkinBits) = "2";
    for (int slot = setting::TitleColour; slot <= setting::StatusColour; ++slot) {
        test_.state.Settings(slot) = "&H00000" + std::to_string(slot);
    }
    test_.state.Settings(setting::BackgroundColour) = background;
}

void LinesFormTest::ExpectTabOrder(const std::vector<const char*>& order) {
    QWidget* widget = Find<QWidget>(*form_, order.front());
    for (const char* name : order) {
        while ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled() ||
               widget->objectName().startsWith(QStringLiteral("qt_"))) {
            widget = widget->nextInFocusChain();
        }
        EXPECT_EQ(widget->objectName(), QString::fromLatin1(name));
        widget = widget->nextInFocusChain();
    }
}

void LinesFormTest::ChooseLottery(int index) {
    Find<ListBox>(*form_, lotteryList)->SetIndex(index);
}
