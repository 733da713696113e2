// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/RetryingForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "core/settings.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* statusLine = "Label10";
constexpr const char* firstHelp = "Command10";
constexpr const char* secondHelp = "Command11";

PlayControlNames OtherNames() {
    PlayControlNames names;
    names.help = QString::fromLatin1(firstHelp);
    names.filters = QStringLiteral("Label6");
    names.conditions = QStringLiteral("Label12");
    names.explain = QString();
    names.status = QString::fromLatin1(statusLine);
    return names;
}

/// Makes one line, whose numbers are all even until the tries that a test asks for are over.
class OneLineForm final : public RetryingForm {
  public:
    explicit OneLineForm(Program& program)
        : RetryingForm(program, {QStringLiteral("OneLine"), {}, {}, {}}, OtherNames(), 1, nullptr) {
        ConditionsHeading().addWidget(
            MakeHelpButton(QString::fromLatin1(secondHelp), QStringLiteral("?")));
    }

    using RetryingForm::ClearConditions;
    int tries = 0;
    int evenTries = 0;

  protected:
    void PlayLotto() override {
        const int step = ++tries <= evenTries ? 2 : 1;
        for (int column = 1; column <= 6; ++column) {
            state().Lines(1, column) = static_cast<std::int16_t>(step * column);
        }
        state().Lines(2, 1) = 0;
    }
    GeneratorStyle Style() const override { return {}; }
};

class ARetryingForm : public LinesFormTest {
  protected:
    ARetryingForm() {
        AddUkLotto(test_.folder);
        for (int slot = setting::OddEvenStrength; slot <= setting::HistoryStrength; ++slot)
            test_.state.Settings(slot) = "1";
        ShowForm(std::make_unique<OneLineForm>(test_.program));
    }

    OneLineForm& Retrying() { return static_cast<OneLineForm&>(*form_); }
};

TEST_F(ARetryingForm, TakesItsFirstTryWithoutConditions) {
    EXPECT_EQ(Retrying().tries, 1);
    EXPECT_EQ(Text(statusLine), QStringLiteral("Tries: 1   Time: 0.00 sec"));
}

TEST_F(ARetryingForm, TriesUntilItsLinesComply) {
    Click(*form_, oddEvenBox);
    Retrying().tries = 0;
    Retrying().evenTries = 4;
    Click(*form_, generateButton);
    EXPECT_EQ(Retrying().tries, 5);
    EXPECT_EQ(Text(statusLine), QStringLiteral("Tries: 5   Time: 0.00 sec"));
}

TEST_F(ARetryingForm, ClearsItsConditionsWhereAFormAsksForIt) {
    const std::vector<const char*> boxes = {oddEvenBox, highLowBox, previousDrawsBox};
    for (const char* box : boxes) Click(*form_, box);
    Retrying().ClearConditions();
    for (const char* box : boxes) EXPECT_FALSE(Find<QCheckBox>(*form_, box)->isChecked()) << box;
}

TEST_F(ARetryingForm, BearsOtherControlNamesAndASecondHelpButton) {
    ExpectLabels({{"Label12", "Do not pick lottery entries with..."}, {"Label6", "Filters"}});
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("Command3")), nullptr);
    for (const char* help : {firstHelp, secondHelp}) Click(*form_, help);
    EXPECT_EQ(test_.pages, std::vector<QString>(2, QStringLiteral("helpplay.html")));
}

TEST_F(ARetryingForm, GivesTheStatusLineColourFourOfTheSkin) {
    TakeSkinColours("&HFFFFFF");
    ShowForm(std::make_unique<OneLineForm>(test_.program));
    EXPECT_EQ(TextColour(statusLine), QColor(4, 0, 0));
}

TEST_F(ARetryingForm, HasNoNumberOfLines) {
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("HScroll1")), nullptr);
}

}  // namespace
