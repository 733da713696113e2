// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/new_database.h"

#include "core/field_reader.h"
#include "core/saving.h"
#include "databases/draw_records.h"

std::string CreateDatabaseFile(ProgramFolder& folder, std::string_view bytes) {
    const auto name = [](int number) { return "dbase" + std::to_string(number) + ".txt"; };
    return CreateNumbered(folder, 1, name, bytes);
}

std::string CreateDatabase(ProgramFolder& folder, const NewLottery& lottery) {
    std::string bytes = lottery.name + "\r\n" + lottery.address + "\r\n";
    // The third field is 1 for every lottery made here; the fourth one tells of an extra ball.
    bytes += lottery.picks + "," + lottery.highest + ",1," + lottery.highestExtra + "," +
             (lottery.hasBonus ? "1" : "0") + "\r\n";
    bytes += MakeDrawRecord(lottery.firstDraw, lottery.numbers).text + "\r\n";
    return CreateDatabaseFile(folder, bytes);
}

std::vector<std::string> LotteryNames(const ProgramFolder& folder) {
    std::vector<std::string> names;
    for (const std::string& file : folder.Find("dbase*.txt")) {
        const std::string content = folder.Read(file);
        names.emplace_back(FieldReader(content, file).ReadLine("the name of the lottery"));
    }
    return names;
}
