// SPDX-License-Identifier: GPL-3.0-or-later
// Which of day and month stands first.
#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "core/text.h"
#include "databases/import_rows.h"

namespace {

using Order = Region::Order;
using Form = WrittenDate::Form;

// What speaks for one order.
struct Evidence {
    Order order = Order::DayMonthYear;
    std::size_t dates = 0;     // that a calendar has
    std::size_t weekdays = 0;  // that fit those named
    std::size_t coming = 0;    // more than a month ahead
    double regular = 0;        // how much draws keep to the same days of the week
    double steady = 0;         // share of dates that go the way of most
};

/// Reads all rows in one order after the other.
class Weighing {
  public:
    Weighing(const ImportTable& table, const DatedRows& dated, const DateReader& reader, Date today)
        : dated_(dated), reader_(reader), today_(today), weekdays_(WeekdaysOf(table)) {}

    Evidence Of(Order order) const {
        Evidence evidence{.order = order};
        std::array<double, 8> days{};
        std::size_t rising = 0;
        std::size_t falling = 0;
        std::optional<Date> before;
        for (std::size_t i = 0; i < dated_.rows.size(); ++i) {
            const auto date = reader_.DateOf(dated_.rows[i].written, order);
            if (!date) continue;
            ++evidence.dates;
            const int day = WeekdayNumber(*date);
            days.at(static_cast<std::size_t>(day)) += 1;
            if (weekdays_[i] == day) ++evidence.weekdays;
            if (DaysBetween(today_, *date) > 31) ++evidence.coming;
            if (before && *date > *before) ++rising;
            if (before && *date < *before) ++falling;
            before = date;
        }
        const auto count = static_cast<double>(std::max<std::size_t>(evidence.dates, 1));
        for (const double share : days) evidence.regular += share * share / count / count;
        evidence.steady = static_cast<double>(std::max(rising, falling)) / count;
        return evidence;
    }

  private:
    // The day of the week of each row, where its date or a column of its own names it.
    std::vector<int> WeekdaysOf(const ImportTable& table) const {
        std::vector<int> weekdays;
        for (const DatedRow& row : dated_.rows) weekdays.push_back(row.written.weekday);
        const auto named = [](int day) { return day >= 1 && day <= 7; };
        if (std::any_of(weekdays.begin(), weekdays.end(), named)) return weekdays;
        for (std::size_t column = 0; column < std::min<std::size_t>(table.Columns(), 60);
             ++column) {
            std::size_t found = 0;
            for (std::size_t i = 0; i < dated_.rows.size(); ++i) {
                weekdays[i] = reader_.Weekday(table.Cell(dated_.rows[i].row, column));
                if (named(weekdays[i])) ++found;
                if (i == 50 && found == 0) break;
            }
            if (found * 10 >= dated_.rows.size() * 9) return weekdays;
        }
        std::fill(weekdays.begin(), weekdays.end(), 0);
        return weekdays;
    }

    const DatedRows& dated_;
    const DateReader& reader_;
    Date today_;
    std::vector<int> weekdays_;
};

std::string OrderInWords(Order order) {
    switch (order) {
        case Order::DayMonthYear:
            return "Day before month";
        case Order::MonthDayYear:
            return "Month before day";
        case Order::YearMonthDay:
            return "Year first";
    }
    return {};
}

/// Orders that are still possible; each question leaves fewer.
class Contest {
  public:
    explicit Contest(std::vector<Evidence> orders) : left_(std::move(orders)) {}

    // Keeps those with the most of what is asked for, or nearly so; whether one alone is left.
    template <typename Asked>
    bool Most(Asked asked, double margin) {
        double most = asked(left_.front());
        for (const Evidence& evidence : left_) most = std::max(most, asked(evidence));
        std::erase_if(left_,
                      [&](const Evidence& evidence) { return asked(evidence) < most - margin; });
        return left_.size() == 1;
    }

    const std::vector<Evidence>& Left() const { return left_; }

  private:
    std::vector<Evidence> left_;
};

}  // namespace

OrderChoice ChooseOrder(const ImportTable& table, const DatedRows& dated, const DateReader& reader,
                        const DateRules& rules) {
    bool withoutYear = false;
    bool open = false;
    for (const DatedRow& row : dated.rows) {
        withoutYear = withoutYear || row.written.form == Form::NoYear;
        open = open || row.written.form != Form::Sure;
    }
    const Order region = rules.region.order;
    if (!open) return {region, false, "The dates leave no doubt: month by name, or year first."};
    const Weighing weighing(table, dated, reader, rules.today);
    std::vector<Evidence> orders{weighing.Of(Order::DayMonthYear),
                                 weighing.Of(Order::MonthDayYear)};
    if (withoutYear) orders.push_back(weighing.Of(Order::YearMonthDay));
    Contest contest(std::move(orders));
    const auto chosen = [&contest](const std::string& why) {
        const Order order = contest.Left().front().order;
        return OrderChoice{order, false, OrderInWords(order) + ": " + why};
    };
    if (contest.Most([](const Evidence& e) { return static_cast<double>(e.dates); }, 0.5)) {
        return chosen("the other way round some dates would be none.");
    }
    if (contest.Most([](const Evidence& e) { return static_cast<double>(e.weekdays); }, 0.5)) {
        return chosen("so the days of the week fit.");
    }
    if (contest.Most([](const Evidence& e) { return -static_cast<double>(e.coming); }, 0.5)) {
        return chosen("the other way round some draws would be still to come.");
    }
    if (dated.rows.size() >= 5 && contest.Most([](const Evidence& e) { return e.regular; }, 0.15)) {
        return chosen("so the draws fall on the same days of the week.");
    }
    if (dated.rows.size() >= 3 && contest.Most([](const Evidence& e) { return e.steady; }, 0.1)) {
        return chosen("so the draws follow each other.");
    }
    for (const Evidence& evidence : contest.Left()) {
        if (evidence.order != region) continue;
        return {region, true, OrderInWords(region) + " is a guess, as your region writes dates."};
    }
    const Order order = contest.Left().front().order;
    return {order, true, OrderInWords(order) + " is a guess."};
}
