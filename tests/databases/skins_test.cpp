// SPDX-License-Identifier: GPL-3.0-or-later
// What the forms of the draw databases take from the settings: picture and colours.
#include "databases/CreateDbase.h"
#include "databases/DbaseUpdate.h"
#include "databases/DbaseUpdateUS.h"
#include "databases/DbaseUpdateW.h"
#include "databases/HistoryW.h"
#include "tests/support/skin_of_database_form.h"

namespace {

using SkinOfCreateDbase = SkinOfDatabaseForm<CreateDbase>;
using SkinOfDbaseUpdate = SkinOfDatabaseForm<DbaseUpdate>;
using SkinOfDbaseUpdateUS = SkinOfDatabaseForm<DbaseUpdateUS>;
using SkinOfDbaseUpdateW = SkinOfDatabaseForm<DbaseUpdateW>;
using SkinOfHistoryW = SkinOfDatabaseForm<HistoryW>;

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
