// SPDX-License-Identifier: GPL-3.0-or-later
// What the forms of the draw databases take from the settings: picture and colours.
#include <QBuffer>
#include <QLabel>

#include "core/settings.h"
#include "databases/CreateDbase.h"
#include "databases/DbaseUpdate.h"
#include "databases/DbaseUpdateUS.h"
#include "databases/DbaseUpdateW.h"
#include "databases/HistoryW.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

namespace {

using LabelsAndSlots = std::vector<std::pair<const char*, int>>;

template <typename FormType>
class SkinOf : public testing::Test {
  protected:
    SkinOf() {
        AddUkLotto(test_.folder);
        test_.folder.Write("LotteryTemplates.txt", "UK Lotto,6,49,0,0,\r\n");
    }

    void Open(const char* choice) {
        test_.state.Settings(setting::SkinBits) = choice;
        form_ = std::make_unique<FormType>(test_.program, nullptr);
        form_->Load();
    }

    void ExpectItsPicture() {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        test_.folder.Write("SkinDatabases.jpg", bytes.toStdString());
        Open("1");
        EXPECT_EQ(form_->grab().toImage().pixelColor(1, 1), QColor(Qt::red));
    }

    void ExpectColours(const LabelsAndSlots& labels) {
        for (int slot = setting::TitleColour; slot <= setting::StatusColour; ++slot) {
            test_.state.Settings(slot) = "&H00000" + std::to_string(slot);
        }
        test_.state.Settings(setting::BackgroundColour) = "&HFFEEDD";
        Open("2");
        EXPECT_EQ(form_->palette().color(QPalette::Window), QColor(0xdd, 0xee, 0xff));
        for (const auto& [name, slot] : labels) {
            const auto* label = Find<QLabel>(*form_, name);
            EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(slot, 0, 0)) << name;
        }
    }

    TestProgram test_;
    std::unique_ptr<FormType> form_;
};

using SkinOfCreateDbase = SkinOf<CreateDbase>;
using SkinOfDbaseUpdate = SkinOf<DbaseUpdate>;
using SkinOfDbaseUpdateUS = SkinOf<DbaseUpdateUS>;
using SkinOfDbaseUpdateW = SkinOf<DbaseUpdateW>;
using SkinOfHistoryW = SkinOf<HistoryW>;

TEST_F(SkinOfCreateDbase, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label17", 1}, {"Label16", 2}, {"Label18", 2}, {"Label3", 3}, {"Label7", 3}});
}

TEST_F(SkinOfDbaseUpdate, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label5", 1}, {"Label4", 2}, {"Label1", 4}, {"Label3", 4}});
    for (const char* plain : {"Label2", "Label6(0)", "Label6(4)"}) {
        EXPECT_EQ(Find<QLabel>(*form_, plain)->palette().color(QPalette::WindowText),
                  form_->palette().color(QPalette::WindowText))
            << plain;
    }
}

TEST_F(SkinOfDbaseUpdateUS, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label5", 1},
                   {"Label4", 2},
                   {"Label2", 3},
                   {"Label6", 3},
                   {"Label7", 3},
                   {"Label1", 4},
                   {"Label3", 4}});
}

TEST_F(SkinOfDbaseUpdateW, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label5", 1},
                   {"Label11", 2},
                   {"Label8", 3},
                   {"Label4", 3},
                   {"Label6", 3},
                   {"Label7", 3},
                   {"Label13", 4}});
}

TEST_F(SkinOfHistoryW, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label2", 1}, {"Label4", 2}, {"Label3", 3}});
}

}  // namespace
