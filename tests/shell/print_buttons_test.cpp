// SPDX-License-Identifier: GPL-3.0-or-later
// Every print button of the program prints: walked over the form catalogue.
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <fstream>
#include <iterator>

#include "core/settings.h"
#include "platform/widgets/Grid.h"
#include "printing/PrintRoutines.h"
#include "shell/form_catalogue.h"
#include "test_folders.h"
#include "tests/support/form_test.h"

namespace {

/// The dialogs that a print button leads to; the button of the last one prints.
const QStringList dialogs = {QStringLiteral("PrintSelection"), QStringLiteral("PrintFrm")};

bool OpensFromPrintButton(const CatalogueEntry& entry) {
    const QString form = QString::fromLatin1(entry.form);
    return dialogs.contains(form) || form == QLatin1String("PrintTickets") ||
           form == QLatin1String("PrinterCorrection");
}

QPushButton* PrintButton(const Form& form) {
    const auto buttons = form.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        const auto shortcuts = button->findChildren<QShortcut*>();
        for (const QShortcut* shortcut : shortcuts) {
            if (shortcut->key() == QKeySequence(Qt::CTRL | Qt::Key_P)) return button;
        }
    }
    return nullptr;
}

/// Answers the dialogs as whoever wants one line on paper does.
void AnswerDialog() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialogs.contains(dialog->objectName())) return;
    if (auto* lines = dialog->findChild<QLineEdit*>(QStringLiteral("Text2"))) {
        lines->setText(QStringLiteral("1"));
    }
    Click(*dialog, "Command6");
}

class EveryPrintButton : public testing::Test {
  protected:
    EveryPrintButton() : routines_(test_.program) {
        test_.folder.Write("dbase1.txt",
                           "Sample\r\n\r\n6,49,0,0,1\r\n"
                           "01 Jun 05,1,12,23,34,45,49,0,7\r\n");
        test_.folder.Write("MyLottery.txt",
                           "01-Jun-2005,1,12,23,34,45,49,,,Sample,Anna,dbase1.txt\r\n");
        test_.folder.Write("LotteryTemplates.txt", "Sample,6,49,0,0,\r\n");
        std::ifstream wheel(SUPPLIED_DATA "/wheel49.dat", std::ios::binary);
        test_.folder.Write("wheel49.dat", std::string{std::istreambuf_iterator<char>(wheel), {}});
        test_.folder.MakeFolder("Backup");
        test_.folder.Write("Lottery Info.txt", "#One\r\ntext\r\n");
        test_.tick = 0.001;
        MakeDefaultSettings(test_.state, test_.folder);
        routines_.Offer();
    }

    std::size_t Printed() const {
        return test_.printers.printed.size() + test_.printers.pictures.size();
    }

    /// Whether the form has a print button; it is pressed, and has to print something.
    bool Prints(const CatalogueEntry& entry) {
        const std::unique_ptr<Form> form = entry.make(test_.program, nullptr);
        form->Load();
        form->show();
        QApplication::processEvents();
        QPushButton* print = PrintButton(*form);
        if (print == nullptr) return false;
        auto* grid = form->findChild<Grid*>(QStringLiteral("MSFlexGrid1"));
        if (grid != nullptr && grid->Cell(1, 1).isEmpty()) {
            grid->SetCell(1, 0, QStringLiteral("1"));
            grid->SetCell(1, 1, QStringLiteral("7"));
        }
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, &answers, AnswerDialog);
        answers.start(0);
        const std::size_t before = Printed();
        EXPECT_TRUE(print->isEnabled()) << entry.form;
        print->click();
        EXPECT_EQ(Printed(), before + 1) << entry.form;
        EXPECT_TRUE(form->isVisible()) << entry.form;
        return true;
    }

    TestProgram test_;
    PrintRoutines routines_;
};

TEST_F(EveryPrintButton, Prints) {
    QStringList printing;
    for (const CatalogueEntry& entry : FormCatalogue()) {
        if (entry.make == nullptr || OpensFromPrintButton(entry)) continue;
        const QString form = QString::fromLatin1(entry.form);
        if (!printing.contains(form) && Prints(entry)) printing << form;
    }
    for (const char* form :
         {"PLuckyDip", "PHotNumbers", "PWheel2", "Wheel49", "HistoryW", "ShowMyDrawsW",
          "ACommonNumbers", "ANumberStats", "SManager", "SMembers", "SPayments", "PrintSetup"}) {
        EXPECT_TRUE(printing.contains(QString::fromLatin1(form))) << form;
    }
}

}  // namespace
