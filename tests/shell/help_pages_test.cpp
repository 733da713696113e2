// SPDX-License-Identifier: GPL-3.0-or-later
// The help pages: that they are sound, lead nowhere outside, and speak of what is there.
#include "tests/shell/help_pages.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QImageReader>
#include <QLabel>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableView>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "core/text.h"
#include "shell/MenuTexts.h"
#include "test_folders.h"
#include "tests/shell/main_window.h"
#include "wheels/guarantee.h"

namespace {

QString StyleSheet() {
    QFile file(SuppliedPath(QStringLiteral("help/help.css")));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

/// Whether a link of the page leads to a place or a file that is there.
bool Leads(const QString& page, const QString& link) {
    const QString file = link.section(QLatin1Char('#'), 0, 0);
    const QString target = file.isEmpty() ? page : file;
    if (!link.contains(QLatin1Char('#'))) return QFile::exists(SuppliedPath(target));
    const auto found = HelpPagesRead().find(target);
    return found != HelpPagesRead().end() &&
           found->second.anchors.contains(link.section(QLatin1Char('#'), 1));
}

TEST(HelpPages, AreWellFormed) {
    for (const auto& [name, page] : HelpPagesRead()) {
        EXPECT_EQ(page.error, QString()) << name.toStdString();
        EXPECT_FALSE(page.anchors.isEmpty()) << name.toStdString();
    }
}

TEST(HelpPages, NameEachPlaceOnce) {
    for (const auto& [name, page] : HelpPagesRead()) {
        const std::set<QString> different(page.anchors.begin(), page.anchors.end());
        for (const QString& anchor : different) {
            EXPECT_EQ(page.anchors.count(anchor), 1) << name.toStdString() << anchor.toStdString();
        }
    }
}

TEST(HelpPages, HaveAPlaceForEveryForm) {
    for (const CatalogueEntry& entry : FormCatalogue()) {
        EXPECT_TRUE(Leads({}, HelpPlaceOf(entry))) << HelpPlaceOf(entry).toStdString();
    }
    for (const char* place : {"help.html#Quillon", "help.html#PrintPreview"}) {
        EXPECT_TRUE(Leads({}, QString::fromLatin1(place))) << place;
    }
}

TEST(HelpPages, LeadOnlyToWhatIsThere) {
    for (const auto& [name, page] : HelpPagesRead()) {
        for (const QString& link : page.links) {
            EXPECT_TRUE(Leads(name, link)) << name.toStdString() << ": " << link.toStdString();
        }
    }
}

TEST(HelpPages, NeedNothingFromOutside) {
    static const QRegularExpression address(QStringLiteral("https?://([\\w-][\\w.-]*)"));
    for (const auto& [name, page] : HelpPagesRead()) {
        for (const QString& link : page.links + page.pictures) {
            EXPECT_FALSE(link.contains(QStringLiteral("//"))) << link.toStdString();
        }
        EXPECT_FALSE(page.links.filter(QStringLiteral(":")).size()) << name.toStdString();
        auto told = address.globalMatch(page.text);
        while (told.hasNext()) {
            const QString host = told.next().captured(1);
            EXPECT_TRUE(host.endsWith(QStringLiteral(".example"))) << host.toStdString();
        }
    }
    EXPECT_FALSE(StyleSheet().contains(QStringLiteral("url(")));
    EXPECT_FALSE(StyleSheet().contains(QStringLiteral("@import")));
}

TEST(HelpPages, ShowPicturesThatAreThereAndTellWhatIsOnThem) {
    for (const auto& [name, page] : HelpPagesRead()) {
        EXPECT_EQ(page.faults, QStringList()) << name.toStdString();
        for (const QString& picture : page.pictures) {
            EXPECT_TRUE(QImageReader(SuppliedPath(picture)).canRead()) << picture.toStdString();
        }
    }
}

TEST(HelpPages, UseEveryPictureInBothLooks) {
    std::set<QString> used;
    for (const auto& [name, page] : HelpPagesRead())
        used.insert(page.pictures.begin(), page.pictures.end());
    qint64 bytes = 0;
    const QDir folder(SuppliedPath(QStringLiteral("help")));
    for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*.png")})) {
        EXPECT_EQ(used.count(QStringLiteral("help/") % file.fileName()), 1U)
            << file.fileName().toStdString();
        bytes += file.size();
    }
    EXPECT_LT(bytes, 2'500'000);
}

/// "1 in 57", the chance that a line matches so many of six drawn from so many.
QString ChanceOf(int matches, int from) {
    const auto ways = [](int choose, int of) {
        double count = 1;
        for (int i = 1; i <= choose; ++i) count = count * (of - choose + i) / i;
        return std::round(count);
    };
    const double good = ways(matches, 6) * ways(6 - matches, from - 6);
    const auto lines = static_cast<long long>(std::round(ways(6, from) / good));
    return QStringLiteral("1 in ") % QString::fromStdString(GroupedDigits(lines));
}

TEST(HelpPages, TellTheTrueChancesOfALine) {
    const QString text = HelpPagesRead().at(QStringLiteral("helpplay.html")).text;
    for (const int from : {49, 59}) {
        for (const int matches : {3, 4, 5, 6}) {
            EXPECT_TRUE(text.contains(ChanceOf(matches, from)))
                << ChanceOf(matches, from).toStdString();
        }
    }
}

TEST(HelpPages, TellOfEachWheelThatMissesItsPromise) {
    using wheels::WheelList;
    const QString text = HelpPagesRead().at(QStringLiteral("helpplay.html")).text;
    int wheelsWithGaps = 0;
    for (const WheelList list :
         {WheelList::ThreeMatch, WheelList::FourMatch, WheelList::ThreeForSix,
          WheelList::ThreeForThree, WheelList::FiveForSix}) {
        for (int item = 0; item < static_cast<int>(wheels::FamilyOf(list).items.size()); ++item) {
            const wheels::Guarantee found = wheels::VerifyGuarantee(list, item);
            if (found.uncovered == 0) continue;
            ++wheelsWithGaps;
            const long long oneIn = std::llround(static_cast<double>(found.selections) /
                                                 static_cast<double>(found.uncovered));
            const std::string told = PlainDigits(wheels::WheelAt(list, item).numbers) + " numbers" +
                                     GroupedDigits(found.selections) +
                                     GroupedDigits(found.uncovered) + ", one in " +
                                     GroupedDigits(oneIn);
            EXPECT_TRUE(text.contains(QString::fromStdString(told))) << told;
        }
    }
    EXPECT_EQ(text.count(QStringLiteral(", one in ")), wheelsWithGaps);
}

/// A caption as a page writes it: without underlined letters, blanks around, and colons.
QString Plain(QString caption) {
    caption.remove(QLatin1Char('&'));
    caption = caption.simplified();
    while (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
    return caption;
}

TEST(HelpPages, NameMenuEntriesAsTheyAre) {
    std::set<QString> paths;
    for (const MenuText& menu : MenuTexts()) {
        const QString caption = Plain(QString::fromUtf8(menu.caption));
        for (const EntryText& entry : menu.entries) {
            paths.insert(caption % QStringLiteral(" › ") % Plain(QString::fromUtf8(entry.caption)));
        }
    }
    std::set<QString> told;
    for (const auto& [name, page] : HelpPagesRead())
        told.insert(page.menuPaths.begin(), page.menuPaths.end());
    for (const QString& path : told) EXPECT_TRUE(paths.count(path)) << path.toStdString();
    for (const QString& path : paths)
        EXPECT_TRUE(told.count(path)) << "untold: " << path.toStdString();
}

/// All words that can be read in a window.
std::set<QString> WordsIn(const QWidget& window) {
    std::set<QString> words = {Plain(window.windowTitle())};
    const auto add = [&words](const QString& text) { words.insert(Plain(text)); };
    for (const auto* button : window.findChildren<QAbstractButton*>()) add(button->text());
    for (const auto* label : window.findChildren<QLabel*>()) add(label->text());
    for (const auto* action : window.findChildren<QAction*>()) add(action->text());
    for (const auto* box : window.findChildren<QGroupBox*>()) add(box->title());
    for (const auto* list : window.findChildren<QComboBox*>()) {
        for (int item = 0; item < list->count(); ++item) add(list->itemText(item));
    }
    for (const auto* tabs : window.findChildren<QTabWidget*>()) {
        for (int tab = 0; tab < tabs->count(); ++tab) add(tabs->tabText(tab));
    }
    for (const auto* table : window.findChildren<QTableView*>()) {
        for (int column = 0; table->model() != nullptr && column < table->model()->columnCount();
             ++column) {
            add(table->model()->headerData(column, Qt::Horizontal).toString());
        }
    }
    return words;
}

/// The main window and every form on a folder with the supplied files.
class WordsOfHelp : public MainWindow {
  protected:
    void SetUp() override {
        for (const char* name :
             {"dbasedemo1.txt", "LotteryTemplates.txt", "wheel49.dat", "Lottery Info.txt"}) {
            std::ifstream file(std::string(SUPPLIED_DATA "/") + name, std::ios::binary);
            if (file)
                program.folder.Write(name, std::string{std::istreambuf_iterator<char>(file), {}});
        }
        if (!program.folder.FolderExists("Backup")) program.folder.MakeFolder("Backup");
        program.tick = 0.001;
        Start();
        words_[QStringLiteral("Quillon")] = WordsIn(*window);
        for (const CatalogueEntry& entry : FormCatalogue()) {
            if (entry.make == nullptr) {
                notThereYet_.insert(QString::fromLatin1(entry.form));
                continue;
            }
            const std::unique_ptr<Form> form = entry.make(program.program, nullptr);
            form->Load();
            words_[QString::fromLatin1(entry.form)].merge(WordsIn(*form));
        }
    }

    /// Whether the word stands in the form that the place is about, or anywhere where the place is
    /// about no form.
    bool Stands(const NamedWord& word) const {
        for (auto place = word.within.rbegin(); place != word.within.rend(); ++place) {
            if (notThereYet_.count(*place) > 0) return true;
            const auto form = words_.find(*place);
            if (form != words_.end()) return form->second.count(word.text) > 0;
        }
        return std::any_of(words_.begin(), words_.end(),
                           [&](const auto& form) { return form.second.count(word.text) > 0; });
    }

  private:
    std::map<QString, std::set<QString>> words_;
    std::set<QString> notThereYet_;
};

TEST_F(WordsOfHelp, AreThoseOfTheProgram) {
    for (const auto& [name, page] : HelpPagesRead()) {
        for (const NamedWord& word : page.words) {
            EXPECT_TRUE(Stands(word))
                << name.toStdString() << ": " << word.text.toStdString() << ", in "
                << word.within.join(QLatin1Char(' ')).simplified().toStdString();
        }
    }
}

}  // namespace
