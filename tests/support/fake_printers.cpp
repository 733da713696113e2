// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/fake_printers.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/plain_room.h"

namespace {

std::pair<double, double> SizeOf(PaperSize paper) {
    switch (paper) {
        case PaperSize::A4:
            return {210, 297};
        case PaperSize::A3:
            return {297, 420};
        case PaperSize::Letter:
            return {215.9, 279.4};
        case PaperSize::Legal:
            return {215.9, 355.6};
    }
    return {0, 0};
}

SheetRoom RoomOf(const PrintOptions& options) {
    const auto [width, height] = SizeOf(options.paper.value_or(PaperSize::A4));
    const bool landscape = options.orientation == Orientation::Landscape;
    return landscape ? PlainRoom(height, width) : PlainRoom(width, height);
}

}  // namespace

QStringList FakePrinters::Names() {
    ++asked;
    return names;
}

void FakePrinters::Choose(const QString& name) {
    EXPECT_TRUE(names.contains(name)) << name.toStdString();
    current = name;
}

void FakePrinters::Print(QWidget*, const PrintJob& job) {
    printed.push_back({current, job, job.compose(RoomOf(job.options))});
}

void FakePrinters::PrintPicture(QWidget*, const PictureJob& job) {
    pictures.push_back({current, job});
}

void FakePrinters::SetCorrection(const QString& name, const PageCorrection& correction) {
    corrections[name] = correction;
}
