// SPDX-License-Identifier: GPL-3.0-or-later
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>

#include "platform/system/ColourDialog.h"
#include "platform/system/FileDialogs.h"
#include "tests/support/form_test.h"

namespace {

TEST(TheColourDialog, BeginsWithTheCurrentColourAndOffersNoTransparency) {
    InDialog([] { ChooseColour(nullptr, QColor(1, 2, 3)); },
             [](QDialog& dialog) {
                 const auto& colours = dynamic_cast<QColorDialog&>(dialog);
                 EXPECT_EQ(colours.currentColor(), QColor(1, 2, 3));
                 EXPECT_FALSE(colours.testOption(QColorDialog::ShowAlphaChannel));
                 EXPECT_EQ(colours.objectName(), QStringLiteral("CommonDialog1"));
             });
}

TEST(TheColourDialog, GivesTheChosenColour) {
    std::optional<QColor> chosen;
    InDialog([&] { chosen = ChooseColour(nullptr, Qt::black); },
             [](QDialog& dialog) {
                 dynamic_cast<QColorDialog&>(dialog).setCurrentColor(QColor(10, 20, 30));
                 dialog.accept();
             });
    EXPECT_EQ(chosen, QColor(10, 20, 30));
}

TEST(TheColourDialog, GivesNothingWhereItIsCancelled) {
    std::optional<QColor> chosen = QColor(Qt::red);
    InDialog([&] { chosen = ChooseColour(nullptr, Qt::black); },
             [](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(chosen, std::nullopt);
}

TEST(TheFolderDialog, GivesAFolderThatThereIs) {
    const QTemporaryDir place;
    QString chosen;
    InDialog([&] { chosen = ChooseFolder(nullptr, QStringLiteral("Copy to floppy")); },
             [&](QDialog& dialog) {
                 auto& folders = dynamic_cast<QFileDialog&>(dialog);
                 EXPECT_EQ(folders.windowTitle(), QStringLiteral("Copy to floppy"));
                 EXPECT_EQ(folders.fileMode(), QFileDialog::Directory);
                 EXPECT_TRUE(folders.testOption(QFileDialog::ShowDirsOnly));
                 folders.setDirectory(place.path());
                 folders.selectFile(place.path());
                 dialog.accept();
             });
    EXPECT_EQ(QDir(chosen).absolutePath(), QDir(place.path()).absolutePath());
}

TEST(TheFolderDialog, GivesNothingWhereItIsCancelled) {
    QString chosen = QStringLiteral("before");
    InDialog([&] { chosen = ChooseFolder(nullptr, QString()); },
             [](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(chosen, QString());
}

TEST(TheFileDialog, GivesAFileThatThereIs) {
    const QTemporaryDir place;
    const QString path = place.filePath(QStringLiteral("draws.csv"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const QString filter = QStringLiteral("Draws (*.csv)");
    QString chosen;
    InDialog([&] { chosen = ChooseFile(nullptr, QStringLiteral("Open draws"), filter); },
             [&](QDialog& dialog) {
                 auto& files = dynamic_cast<QFileDialog&>(dialog);
                 EXPECT_EQ(files.windowTitle(), QStringLiteral("Open draws"));
                 EXPECT_EQ(files.fileMode(), QFileDialog::ExistingFile);
                 EXPECT_EQ(files.nameFilters(), QStringList{filter});
                 files.setDirectory(place.path());
                 files.selectFile(path);
                 dialog.accept();
             });
    EXPECT_EQ(chosen, path);
}

TEST(TheFileDialog, BeginsAtHomeWhereThereAreNoDownloads) {
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    InDialog([&] { ChooseFile(nullptr, QString(), QString()); },
             [&](QDialog& dialog) {
                 EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path(), home.path());
                 EXPECT_EQ(Find<QLineEdit>(dialog, "fileNameEdit")->text(), QString());
                 dialog.reject();
             });
    qputenv("HOME", before);
}

TEST(TheFileDialog, GivesNothingWhereItIsCancelled) {
    QString chosen = QStringLiteral("before");
    InDialog([&] { chosen = ChooseFile(nullptr, QString(), QString()); },
             [](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(chosen, QString());
}

}  // namespace
