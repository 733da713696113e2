// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBuffer>
#include <QLabel>
#include <memory>
#include <utility>
#include <vector>

#include "core/settings.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

/// Labels by their names, each with the slot of the settings whose colour it takes.
using LabelsAndSlots = std::vector<std::pair<const char*, int>>;

/// A form of the draw databases or the entries with the picture and the colours of the settings.
template <typename FormType>
class SkinOfDatabaseForm : public testing::Test {
  protected:
    SkinOfDatabaseForm() {
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
