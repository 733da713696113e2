// SPDX-License-Identifier: GPL-3.0-or-later
// Background picture and colour of the main window.
#include <QBuffer>
#include <QImage>

#include "core/settings.h"
#include "tests/shell/main_window.h"
#include "tests/shell/telling_form.h"

namespace {

class MainSkin : public MainWindow {
  protected:
    void WritePicture(Qt::GlobalColor colour) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        program.folder.Write("SkinMain.jpg", bytes.toStdString());
    }

    /// Opens a form that changes the settings as `change` does, and closes it.
    void ChangeSettings(const std::function<void(Program&)>& change) {
        TellingForm::whileOpen = [&change](Program& opened) {
            change(opened);
            SaveSettings(opened.state, opened.folder);
        };
        window->Open(SettingsForm());
        TellingForm::whileOpen = {};
        QApplication::processEvents();
    }

    QColor WindowColour() const { return window->palette().color(QPalette::Window); }

    /// What stands at the lower edge, where neither toolbar nor panels are.
    QColor Background() const {
        return window->grab().toImage().pixelColor(2, window->height() - 3);
    }

    const QColor own = QMainWindow().palette().color(QPalette::Window);
};

TEST_F(MainSkin, TakesTheBackgroundColourOfTheSettings) {
    WriteSettings(setting::BackgroundColour, "&H00C0FFC0");
    WriteSettings(setting::SkinBits, "2");
    Start();
    EXPECT_EQ(WindowColour(), QColor(0xC0, 0xFF, 0xC0));
}

TEST_F(MainSkin, KeepsTheWindowsOwnColourWhereColoursAreSwitchedOff) {
    WriteSettings(setting::BackgroundColour, "&H00C0FFC0");
    Start();
    EXPECT_EQ(WindowColour(), own);
}

TEST_F(MainSkin, GivesTheRememberedColourBackWhenColoursAreSwitchedOffAgain) {
    WriteSettings(setting::BackgroundColour, "&H00C0FFC0");
    WriteSettings(setting::SkinBits, "2");
    Start();
    ChangeSettings([](Program& opened) { opened.state.Settings(setting::SkinBits) = "0"; });
    EXPECT_EQ(WindowColour(), own);
}

TEST_F(MainSkin, ShowsItsPictureFromTheFirstRunOn) {
    WritePicture(Qt::red);
    Start();
    EXPECT_EQ(Background(), QColor(Qt::red));
}

TEST_F(MainSkin, ShowsTheWindowsColourWithoutAPicture) {
    Start();
    EXPECT_EQ(Background(), own);
}

TEST_F(MainSkin, ShowsNoPictureWherePicturesAreSwitchedOff) {
    WritePicture(Qt::red);
    WriteSettings(setting::SkinBits, "2");
    Start();
    EXPECT_EQ(Background(), WindowColour());
}

TEST_F(MainSkin, TakesThePictureAwayWhenPicturesAreSwitchedOff) {
    WritePicture(Qt::red);
    Start();
    ChangeSettings([](Program& opened) { opened.state.Settings(setting::SkinBits) = "0"; });
    EXPECT_EQ(Background(), own);
}

TEST_F(MainSkin, ShowsAnotherPictureAfterTheSettings) {
    WritePicture(Qt::red);
    Start();
    ChangeSettings([this](Program&) { WritePicture(Qt::blue); });
    EXPECT_EQ(Background(), QColor(Qt::blue));
}

TEST_F(MainSkin, PanelsAtExtremeContrastHaveAnEdgeInTheColourOfTheirWordsAndNoPicture) {
    WritePicture(Qt::red);
    Start();
    Choose("FileNotes");
    QPalette palette(Qt::white, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    window->setPalette(palette);
    QWidget* panel = Find<QWidget>(*window, checklistHeading)->parentWidget();
    const QPoint top(panel->mapTo(window.get(), QPoint(panel->width() / 2, 0)));
    const QImage picture = window->grab().toImage();
    EXPECT_EQ(picture.pixelColor(top), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(top + QPoint(0, 3)), QColor(Qt::black));
}

TEST_F(MainSkin, StaysAsItIsWherePicturesAreOnAndTheFileIsGone) {
    WritePicture(Qt::red);
    Start();
    ChangeSettings([](Program& opened) { opened.folder.Delete("SkinMain.jpg"); });
    EXPECT_EQ(Background(), QColor(Qt::red));
}

}  // namespace
