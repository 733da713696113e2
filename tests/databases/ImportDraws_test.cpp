// SPDX-License-Identifier: GPL-3.0-or-later
// From a source to a lottery, with the choices that the form makes by itself.

#include "databases/import_formats.h"
#include "tests/databases/import_form.h"
#include "tests/support/dropping.h"

namespace {

TEST_F(ImportDrawsForm, BeginsWithAWordOnWhatToDo) {
    Open();
    EXPECT_TRUE(TextOf("Hint").startsWith(QStringLiteral("Choose a file, drop one here")));
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_FALSE(Find<QWidget>(*form_, "Target")->isVisible());
    EXPECT_FALSE(Find<QWidget>(*form_, "Again")->isVisible());
}

TEST_F(ImportDrawsForm, TellsThatAVeryLongTableIsNotReadToItsEnd) {
    Open();
    std::string text = ResultsCsv(PublishedDraws(60));
    ChooseNew("village.csv", text);
    EXPECT_FALSE(TextOf("Remarks").contains(QStringLiteral("are read")));
    for (std::size_t row = 0; row < ImportTable::mostRows; ++row) text += "-\n";
    ChooseNew("village.csv", text);
    EXPECT_TRUE(TextOf("Remarks").contains(QStringLiteral("Only the first 200,000 rows are read.")))
        << TextOf("Remarks").toStdString();
}

TEST_F(ImportDrawsForm, MakesALotteryOfAFileInTwoClicks) {
    Open();
    const auto draws = PublishedDraws(60);
    ChooseNew("village_lotto.csv", ResultsCsv(draws));
    EXPECT_EQ(TextOf("Source"),
              QStringLiteral("village_lotto.csv: 60 draws, 11 Jan 2025 to 28 Feb 2026: 6 of 1 to "
                             "49, bonus from the same numbers."));
    EXPECT_EQ(Table("Draws").RowCount(), 60);
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 60 draws"));
    EXPECT_EQ(Find<QLineEdit>(*form_, "NewName")->text(), QStringLiteral("Village lotto"));

    Click(*form_, "Import");
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), DatabaseText("Village lotto", 49, draws));
    EXPECT_EQ(TextOf("Said"), QStringLiteral("New lottery Village lotto with 60 draws"));
}

TEST_F(ImportDrawsForm, ShowsEachDrawAsItWillBeStored) {
    Open();
    const auto draws = PublishedDraws(60);
    ChooseNew("village.csv", ResultsCsv(draws));
    const RowTable& table = Table("Draws");
    QStringList expected = {QStringLiteral("28 Feb 2026")};
    for (const int ball : draws.front().balls) expected += QString::number(ball);
    EXPECT_EQ(table.Row(0).cells, expected);
    EXPECT_EQ(table.Row(0).number, 2) << "the first row of the file is its heading";
    EXPECT_EQ(table.model()->headerData(7, Qt::Horizontal).toString(), QStringLiteral("Bonus"));
}

TEST_F(ImportDrawsForm, TheSameFileAgainGoesIntoItsLotteryAndAddsNothing) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(60)));
    Click(*form_, "Import");
    const std::string before = test_.folder.Read("dbase1.txt");
    Open();
    Choose(userFolder_.filePath(QStringLiteral("village.csv")));
    EXPECT_TRUE(Find<QRadioButton>(*form_, "IntoExisting")->isChecked());
    EXPECT_EQ(TextOf("Effect"), QStringLiteral("Adds nothing; 60 there already."));
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), before);
    EXPECT_EQ(Databases().size(), 1U);
}

TEST_F(ImportDrawsForm, AddsWhatTheLotteryLacksAndListsWhatDiffers) {
    auto draws = PublishedDraws(60);
    std::vector<PublishedDraw> stored(draws.begin() + 2, draws.end());
    std::swap(stored[3].balls[0], stored[3].balls[6]);
    const std::string database = DatabaseText("Village", 49, stored);
    test_.folder.Write("dbase1.txt", database);
    Open();
    ChooseNew("village.csv", ResultsCsv(draws));
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Add 2 draws"));
    EXPECT_EQ(TextOf("Effect"),
              QStringLiteral("Adds 2 draws; 57 there already; 1 with other numbers there, which "
                             "stay. They are listed under Left out."));
    EXPECT_EQ(Find<QTabWidget>(*form_, "Pages")->tabText(2), QStringLiteral("&Left out (1)"));
    EXPECT_TRUE(Table("LeftOut").Row(0).cells.last().startsWith(QStringLiteral("24 Jan 2026: ")));

    Click(*form_, "Import");
    const std::string head = "Village\r\n\r\n6,49,0,0,1\r\n";
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), head + DatabaseLine(draws[0]) + "\r\n" +
                                                   DatabaseLine(draws[1]) + "\r\n" +
                                                   database.substr(head.size()))
        << "what stands is never changed";
    EXPECT_EQ(TextOf("Said"), QStringLiteral("2 draws added to Village"));
    const auto kept = test_.folder.Find("Backup/Undo/*dbase1.txt");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(test_.folder.Read(kept.front()), database) << "to go back to";
}

TEST_F(ImportDrawsForm, RescuesALotteryThatCannotBeWritten) {
    test_.folder.OfferRescue();
    const auto draws = PublishedDraws(60);
    Open();
    ChooseNew("village.csv", ResultsCsv(draws));
    test_.folder.FailAfterBytes(0);
    Click(*form_, "Import");
    EXPECT_NE(TakeFailure().value_or("").find("elsewhere/dbase1.txt"), std::string::npos);
    const std::string& rescued = test_.folder.Rescued().at("dbase1.txt");
    EXPECT_NE(rescued.find(DatabaseLine(draws.back())), std::string::npos);
}

TEST_F(ImportDrawsForm, RescuesNewDrawsWhereTheOldDatabaseCannotBeKept) {
    const auto draws = PublishedDraws(60);
    const std::string database = DatabaseText("Village", 49, {draws.begin() + 2, draws.end()});
    test_.folder.Write("dbase1.txt", database);
    test_.folder.OfferRescue();
    Open();
    ChooseNew("village.csv", ResultsCsv(draws));
    test_.folder.FailAtOperation(1);
    Click(*form_, "Import");
    EXPECT_NE(TakeFailure().value_or("").find("elsewhere/dbase1.txt"), std::string::npos);
    EXPECT_NE(test_.folder.Rescued().at("dbase1.txt").find(DatabaseLine(draws[0])),
              std::string::npos);
    test_.folder.FailAtOperation({});
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), database);
}

TEST_F(ImportDrawsForm, KeepsTheFormatsBeforeALineThatWasPutThereByHandGoes) {
    test_.folder.Write("ImportFormats.txt", "# mine\r\n");
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(60)));
    Click(*form_, "Import");
    ASSERT_EQ(test_.folder.OldFiles().size(), 1U);
    EXPECT_EQ(test_.folder.OldFiles().begin()->second, "# mine\r\n");
}

TEST_F(ImportDrawsForm, TakesATableThatWasCopiedFromAWebPage) {
    Open();
    const auto draws = PublishedDraws(30);
    QString html = QStringLiteral("<html><body><p>Results</p><table><tr><th>Date</th>");
    for (int ball = 1; ball <= 6; ++ball) html += QStringLiteral("<th>Ball %1</th>").arg(ball);
    html += QStringLiteral("<th>Bonus</th></tr>");
    for (const PublishedDraw& draw : draws) {
        html += QStringLiteral("<tr><td>%1</td>").arg(ToQString(MediumDate(draw.date)));
        for (const int ball : draw.balls) html += QStringLiteral("<td>%1</td>").arg(ball);
        html += QStringLiteral("</tr>");
    }
    Copy(html % QStringLiteral("</table></body></html>"), QStringLiteral("Results"));
    Click(*form_, "PasteTable");
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
    EXPECT_FALSE(Find<QLineEdit>(*form_, "NewName")->text().isEmpty());
}

TEST_F(ImportDrawsForm, TakesRowsThatWereCopiedAsText) {
    Open();
    Copy(QStringLiteral("<b>no table</b>"),
         QString::fromStdString(ResultsCsv(PublishedDraws(30))).replace(u',', u'\t'));
    Click(*form_, "PasteTable");
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportDrawsForm, TakesAFileThatWasCopied) {
    Open();
    auto* copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile(UserFile("village.csv", ResultsCsv(PublishedDraws(30))))});
    QGuiApplication::clipboard()->setMimeData(copied);
    Click(*form_, "PasteTable");
    EXPECT_TRUE(TextOf("Source").startsWith(QStringLiteral("village.csv: 30 draws")));
}

TEST_F(ImportDrawsForm, SaysWhatToDoWhereNothingWasCopied) {
    Open();
    Copy({}, QStringLiteral(" \n"));
    Click(*form_, "PasteTable");
    EXPECT_TRUE(TextOf("Hint").startsWith(QStringLiteral("There is no text to paste.")));
}

TEST_F(ImportDrawsForm, AFileDroppedOnTheBoxOfTheAddressIsNoAddress) {
    Open();
    auto* address = Find<QLineEdit>(*form_, "Address");
    Drop(*address, {QUrl::fromLocalFile(UserFile("village.csv", ResultsCsv(PublishedDraws(30))))});
    EXPECT_EQ(address->text(), QString());
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportDrawsForm, TakesAFileThatIsDroppedOnIt) {
    Open();
    Drop(*form_, {QUrl::fromLocalFile(UserFile("village.csv", ResultsCsv(PublishedDraws(30))))});
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

struct BadInput {
    const char* name;
    std::string bytes;
    const char* word;  // what the answer must speak of
};

TEST_F(ImportDrawsForm, SaysWhatToDoInsteadOfBadInputAndChangesNothing) {
    const std::vector<BadInput> inputs = {
        {"photo.png", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "icture"},
        {"paper.pdf", "%PDF-1.7\n%\xe2\xe3\xcf\xd3\n1 0 obj", "PDF"},
        {"table.xlsx",
         std::string("PK\x03\x04\x14\0\x06\0\x08\0\0\0!\0", 14) +
             "[Content_Types].xml PK xl/workbook.xml",
         "CSV"},
        {"empty.csv", "", "nothing"},
    };
    Open();
    const auto files = test_.folder.Find("*");
    for (const BadInput& input : inputs) {
        ChooseNew(input.name, input.bytes);
        EXPECT_TRUE(TextOf("Hint").contains(QString::fromLatin1(input.word)))
            << input.name << ": " << TextOf("Hint").toStdString();
        EXPECT_TRUE(Find<QLabel>(*form_, "Hint")->isVisible()) << input.name;
        EXPECT_FALSE(ImportButton().isEnabled()) << input.name;
    }
    EXPECT_EQ(test_.folder.Find("*"), files);
}

TEST_F(ImportDrawsForm, RefusesAFileOfTwoHundredMegabytesWithoutReadingIt) {
    Open();
    const QString path = UserFile("huge.csv", "");
    ASSERT_TRUE(QFile::resize(path, 200LL * 1024 * 1024));
    Choose(path);
    EXPECT_EQ(TextOf("Hint"), ToQString(TooLargeToImport()));
}

TEST_F(ImportDrawsForm, SaysWhyAFileCannotBeRead) {
    Open();
    Choose(userFolder_.filePath(QStringLiteral("missing.csv")));
    EXPECT_EQ(TextOf("Hint"),
              QStringLiteral("The file cannot be read: No such file or directory."));
}

TEST_F(ImportDrawsForm, ShowsTheRowsOfATextWithoutDraws) {
    Open();
    ChooseNew("letter.txt", "Dear Ann,\n\nplease bring the tickets on Saturday.\n\nTom\n");
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_FALSE(TextOf("Source").isEmpty());
    EXPECT_EQ(Find<QTabWidget>(*form_, "Pages")->currentIndex(), 1);
}

TEST_F(ImportDrawsForm, AThinkingBetterOfChoosingAFileLeavesAllAsItIs) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    Choose({});
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 30 draws"));
}

TEST_F(ImportDrawsForm, AsksForANameThatEntriesCanBear) {
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    Type(*form_, "NewName", {});
    EXPECT_EQ(TextOf("Effect"), QStringLiteral("Give the lottery a name."));
    EXPECT_FALSE(ImportButton().isEnabled());
    Type(*form_, "NewName", QStringLiteral("Lotto, old"));
    EXPECT_FALSE(ImportButton().isEnabled());
    Type(*form_, "NewName", QStringLiteral("Lotto"));
    EXPECT_TRUE(ImportButton().isEnabled());
}

TEST_F(ImportDrawsForm, MakesNoMoreLotteriesThanTheListsHaveRoomFor) {
    for (int lottery = 0; lottery < 76; ++lottery) {
        AddLottery(test_.folder, "dbase" + std::to_string(100 + lottery) + ".txt", "Full",
                   "6,49,0,0,1");
    }
    Open();
    ChooseNew("village.csv", ResultsCsv(PublishedDraws(30)));
    EXPECT_EQ(TextOf("Effect"),
              QStringLiteral("There is room for 76 lotteries. Delete one first."));
    EXPECT_FALSE(ImportButton().isEnabled());
}

TEST_F(ImportDrawsForm, SaysWhatALotteryOfManyNumbersCannotBeUsedFor) {
    Open();
    ChooseNew("many.csv", ResultsCsv(PublishedDraws(100, 75)));
    const ImportRules rules{.picks = 6, .highest = 75, .highestExtra = 0, .hasBonus = true};
    ASSERT_FALSE(CautionAbout(rules).empty());
    EXPECT_TRUE(TextOf("Remarks").contains(ToQString(CautionAbout(rules))))
        << TextOf("Remarks").toStdString();
    ChooseNew("few.csv", ResultsCsv(PublishedDraws(100)));
    EXPECT_FALSE(TextOf("Remarks").contains(ToQString(CautionAbout(rules))));
}

TEST_F(ImportDrawsForm, TakesTheNewestDrawsThatALotteryHasRoomFor) {
    Open();
    ChooseNew("long.csv", ResultsCsv(PublishedDraws(3100)));
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 2,999 draws"));
    EXPECT_TRUE(TextOf("Remarks").contains(
        QStringLiteral("The oldest 101 draws are left out: a lottery has room for 2,999.")));
}

}  // namespace
