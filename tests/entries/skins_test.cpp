// SPDX-License-Identifier: GPL-3.0-or-later
// What the forms of the entries take from the settings: picture and colours.
#include "entries/ShowMyDrawsW.h"
#include "entries/StoreMyDrawsW.h"
#include "tests/support/skin_of_database_form.h"

namespace {

using SkinOfShowMyDrawsW = SkinOfDatabaseForm<ShowMyDrawsW>;
using SkinOfStoreMyDrawsW = SkinOfDatabaseForm<StoreMyDrawsW>;

TEST_F(SkinOfShowMyDrawsW, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label8", 1},
                   {"Label9", 2},
                   {"Label10", 2},
                   {"Label1", 3},
                   {"Label2", 3},
                   {"Label4", 3},
                   {"Label5", 3},
                   {"Label6", 3},
                   {"Label14", 3}});
}

TEST_F(SkinOfStoreMyDrawsW, IsItsPictureAndTheColours) {
    ExpectItsPicture();
    ExpectColours({{"Label5", 1}, {"Label1", 2}, {"Label7", 3}, {"Label8", 3}, {"LabelPName", 3}});
}

}  // namespace
