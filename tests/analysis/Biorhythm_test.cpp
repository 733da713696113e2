// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/Biorhythm.h"

#include <QDateEdit>
#include <QRadioButton>

#include "tests/analysis/analysis_form.h"
#include "tests/core/regions.h"

namespace {

constexpr auto bodyChart = "MSChart1";
constexpr auto mindChart = "MSChart2";
constexpr auto luckChart = "MSChart3";
constexpr auto birthDatePicker = "DTPicker1";
constexpr auto updateButton = "Command1";
constexpr auto closeButton = "Command2";
constexpr auto printButton = "Command6";
constexpr auto todayOption = "Option1(0)";
constexpr auto tomorrowOption = "Option1(1)";

using Figures = std::vector<std::vector<double>>;

class BiorhythmForm : public AnalysisFormTest<Biorhythm> {
  protected:
    BiorhythmForm() { test_.state.Settings(setting::BirthDate) = "23-Jul-1985"; }

    std::string BirthDateKept() { return test_.state.Settings(setting::BirthDate); }

    void SetBirthDate(const QDate& date) {
        Find<QDateEdit>(*form_, birthDatePicker)->setDate(date);
    }

    Figures FiguresOf(const char* name) {
        const Chart& chart = ChartOf(name);
        Figures figures;
        for (int row = 1; row <= chart.rowCount(); ++row) {
            auto& values = figures.emplace_back();
            for (int column = 1; column <= chart.columnCount(); ++column) {
                values.push_back(chart.value(row, column));
            }
        }
        return figures;
    }

    template <typename Rows>
    static Figures Expected(const Rows& rows) {
        Figures figures;
        for (const auto& row : rows) figures.emplace_back(row.begin(), row.end());
        return figures;
    }

    static Figures Column(const biorhythms::Values& values) {
        Figures figures;
        for (const double value : values) figures.push_back({value});
        return figures;
    }

    /// The charts of who is so many days old today; the Biochart may be of another day.
    void ExpectCharts(int days, int luckDays) {
        EXPECT_EQ(FiguresOf(bodyChart), Expected(biorhythms::BodyChart(days)));
        EXPECT_EQ(FiguresOf(mindChart), Expected(biorhythms::MindChart(days)));
        EXPECT_EQ(FiguresOf(luckChart), Column(biorhythms::Biochart(luckDays)));
    }
};

constexpr int age = 7253;  // days from 23 July 1985 to 1 June 2005

TEST_F(BiorhythmForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Biorhythm"));
    EXPECT_EQ(Text("Label5"), QStringLiteral("Biorhythms"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Day you were born:"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("     Biochart:"));
    EXPECT_EQ(
        Text("Label6"),
        QStringLiteral("The body and mind operate according to a series of regular cycles. These "
                       "affect how you feel and function. The charts show these cycles for the "
                       "past week and next two weeks. The Biochart shows how lucky you are - "
                       "derived from the combined intellectual, emotional and intuition cycles."));
    EXPECT_EQ(Find<QPushButton>(*form_, updateButton)->text(), QStringLiteral("Update"));
    EXPECT_EQ(Find<QPushButton>(*form_, printButton)->toolTip(), QStringLiteral(" Print form "));
    EXPECT_EQ(Find<QRadioButton>(*form_, todayOption)->text(), QStringLiteral("Today"));
    EXPECT_EQ(Find<QRadioButton>(*form_, tomorrowOption)->text(), QStringLiteral("Tomorrow"));
    EXPECT_TRUE(Find<QRadioButton>(*form_, todayOption)->isChecked());
}

TEST_F(BiorhythmForm, NamesItsSeriesAndRows) {
    Open();
    const auto columns = [this](const char* name) {
        QStringList labels;
        const Chart& chart = ChartOf(name);
        for (int column = 1; column <= chart.columnCount(); ++column) {
            labels << chart.columnLabel(column);
        }
        return labels.join(QLatin1Char(' ')).toStdString();
    };
    EXPECT_EQ(columns(bodyChart), "Physical Intellectual Emotional Average");
    EXPECT_EQ(columns(mindChart), "Spiritual Aesthetic Awareness Intuition");
    QStringList rows;
    for (int row = 1; row <= 4; ++row) rows << ChartOf(luckChart).rowLabel(row);
    EXPECT_EQ(rows.join(QLatin1Char(' ')).toStdString(), "Intellectual Emotional Intuition Luck");
    EXPECT_EQ(ChartOf(luckChart).rowCount(), 4);
    EXPECT_EQ(ChartOf(luckChart).columnCount(), 1);
}

TEST_F(BiorhythmForm, ShowsFourWeeksWithTodayInTheEighthRow) {
    Open();
    for (const char* name : {bodyChart, mindChart}) {
        EXPECT_EQ(ChartOf(name).rowCount(), 28);
        EXPECT_EQ(ChartOf(name).rowLabel(1), QStringLiteral("25"));
        EXPECT_EQ(ChartOf(name).rowLabel(7), QStringLiteral("31"));
        EXPECT_EQ(ChartOf(name).rowLabel(8), QStringLiteral("1"));
        EXPECT_EQ(ChartOf(name).rowLabel(28), QStringLiteral("21"));
    }
    EXPECT_EQ(Text("Label1"), QStringLiteral("25 May"));
    EXPECT_EQ(Text("Label2"), QStringLiteral("1"));
    EXPECT_EQ(Text("Label3"), QStringLiteral("21 June"));
}

TEST_F(BiorhythmForm, NamesMonthsAsTheRegionDoes) {
    test_.services.region = GermanRegion();
    test_.today = std::chrono::year(2006) / 3 / 4;
    Open();
    EXPECT_EQ(Text("Label1"), QStringLiteral("25 Februar"));
    EXPECT_EQ(Text("Label2"), QStringLiteral("4"));
    EXPECT_EQ(Text("Label3"), QStringLiteral(u"24 M\u00e4rz"));
    EXPECT_EQ(BirthDateKept(), "23 Jul 1985");
}

TEST_F(BiorhythmForm, CalculatesWhenItOpensAndKeepsTheDateInItsOwnForm) {
    Open();
    EXPECT_EQ(Find<QDateEdit>(*form_, birthDatePicker)->date(), QDate(1985, 7, 23));
    ExpectCharts(age, age);
    EXPECT_EQ(BirthDateKept(), "23 Jul 1985");
}

TEST_F(BiorhythmForm, TakesAChangedDateWithUpdateOnly) {
    Open();
    SetBirthDate(QDate(1985, 7, 20));
    ExpectCharts(age, age);
    EXPECT_EQ(BirthDateKept(), "23 Jul 1985");
    Click(*form_, updateButton);
    ExpectCharts(age + 3, age + 3);
    EXPECT_EQ(BirthDateKept(), "20 Jul 1985");
}

TEST_F(BiorhythmForm, TakesAChangedDateWithAClickOnAnOptionToo) {
    Open();
    SetBirthDate(QDate(1985, 7, 20));
    Click(*form_, todayOption);
    ExpectCharts(age + 3, age + 3);
    EXPECT_EQ(BirthDateKept(), "20 Jul 1985");
}

TEST_F(BiorhythmForm, ChangesTheBiochartOnlyForTomorrow) {
    Open();
    Click(*form_, tomorrowOption);
    ExpectCharts(age, age + 1);
    Click(*form_, todayOption);
    ExpectCharts(age, age);
}

TEST_F(BiorhythmForm, KeepsTheDateOfTheLastCalculationWhenItCloses) {
    Open();
    SetBirthDate(QDate(1985, 7, 20));
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(BirthDateKept(), "23 Jul 1985");
}

TEST_F(BiorhythmForm, ShowsWhoIsBornTodayOrLater) {
    test_.state.Settings(setting::BirthDate) = "01/06/2005";
    Open();
    ExpectCharts(0, 0);
    EXPECT_EQ(BirthDateKept(), "01 Jun 2005");
    SetBirthDate(QDate(2006, 6, 1));
    Click(*form_, updateButton);
    ExpectCharts(-365, -365);
}

TEST_F(BiorhythmForm, EndsInTheReportOnABirthDateThatIsNone) {
    test_.state.Settings(setting::BirthDate) = "long ago";
    Biorhythm form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(BiorhythmForm, OpensWithoutALottery) {
    test_.folder = MemoryFolder();
    Open();
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(BiorhythmForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf("Label5"), QColor(1, 0, 0));
    EXPECT_EQ(ColourOf("Label6"), QColor(2, 0, 0));
    for (const char* name : {"Label1", "Label2", "Label3", "Label4", "Label7"}) {
        EXPECT_EQ(ColourOf(name), QColor(3, 0, 0)) << name;
    }
}

TEST_F(BiorhythmForm, PrintsItselfWherePrintingIsThere) { ExpectPrintsItself(closeButton); }

TEST_F(BiorhythmForm, NamesTheDaysOfItsOpeningAndChartsThoseOfTheCalculation) {
    Open();
    test_.today = std::chrono::year(2005) / 6 / 2;
    Click(*form_, updateButton);
    EXPECT_EQ(Text("Label1"), QStringLiteral("25 May"));
    EXPECT_EQ(Text("Label2"), QStringLiteral("1"));
    EXPECT_EQ(Text("Label3"), QStringLiteral("21 June"));
    EXPECT_EQ(ChartOf(bodyChart).rowLabel(8), QStringLiteral("2"));
    ExpectCharts(age + 1, age + 1);
}

TEST_F(BiorhythmForm, TellsADayByItsFullNameUnderTheMouse) {
    Open();
    const QString told = Hovers(bodyChart).front();
    EXPECT_TRUE(told.startsWith(QStringLiteral("25 May: Physical "))) << told.toStdString();
}

TEST_F(BiorhythmForm, DrawsEachCalculationAnew) {
    Open();
    const auto told = [this] { return Hovers(bodyChart) + Hovers(mindChart) + Hovers(luckChart); };
    const QStringList first = told();
    ASSERT_EQ(first.size(), 28 + 28 + 4);
    EXPECT_TRUE(first[56].startsWith(QStringLiteral("Intellectual: "))) << first[56].toStdString();
    SetBirthDate(QDate(1985, 7, 20));
    Click(*form_, updateButton);
    const QStringList second = told();
    for (const int place : {0, 28, 56}) EXPECT_NE(first[place], second[place]) << place;
    SetBirthDate(QDate(1985, 7, 23));
    Click(*form_, updateButton);
    EXPECT_EQ(told(), first);
}

}  // namespace
