// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Throws a `Failure` that says which cell of the table `name` was asked for, and how large it is.
[[noreturn]] void FailOutsideTable(const char* name, long long row, long long column,
                                   std::size_t rows, std::size_t columns);

/// Throws a `Failure` that says which entry of the list `name` was asked for, and how long it is.
[[noreturn]] void FailOutsideList(const char* name, long long index, std::size_t size);

/// A table of fixed size with checked indices; rows and columns count from 0.
///
/// An index outside the table throws a `Failure`. Every mutable access counts as a change, so that
/// whoever keeps something computed from the table can ask `Version()` whether it still holds; a
/// reference must therefore not be kept and written to later.
template <typename Value, std::size_t Rows, std::size_t Columns>
class Table {
  public:
    explicit Table(const char* name) : name_(name) {}

    static constexpr std::size_t RowCount() { return Rows; }
    static constexpr std::size_t ColumnCount() { return Columns; }

    Value& operator()(long long row, long long column) {
        ++version_;
        return cells_[Index(row, column)];
    }
    const Value& operator()(long long row, long long column) const {
        return cells_[Index(row, column)];
    }

    /// The cells of one row, column 0 first, for loops that have checked their own bounds.
    const Value* Row(long long row) const { return &cells_[Index(row, 0)]; }
    Value* Row(long long row) {
        ++version_;
        return &cells_[Index(row, 0)];
    }

    void Fill(const Value& value) {
        ++version_;
        cells_.fill(value);
    }

    /// Grows with every mutable access; equal versions mean equal contents.
    std::uint64_t Version() const { return version_; }

  private:
    std::size_t Index(long long row, long long column) const {
        if (row < 0 || column < 0 || row >= static_cast<long long>(Rows) ||
            column >= static_cast<long long>(Columns)) [[unlikely]] {
            FailOutsideTable(name_, row, column, Rows, Columns);
        }
        return static_cast<std::size_t>(row) * Columns + static_cast<std::size_t>(column);
    }

    const char* name_;
    std::uint64_t version_ = 0;
    std::array<Value, Rows * Columns> cells_{};
};

/// A list of fixed size with checked indices from 0; an index outside it throws a `Failure`.
template <typename Value, std::size_t Size>
class List {
  public:
    explicit List(const char* name) : name_(name) {}

    static constexpr std::size_t Count() { return Size; }

    Value& operator()(long long index) { return entries_[Index(index)]; }
    const Value& operator()(long long index) const { return entries_[Index(index)]; }

    void Fill(const Value& value) { entries_.fill(value); }

    /// The first entry, for loops that have checked their own bounds.
    Value* Data() { return entries_.data(); }
    const Value* Data() const { return entries_.data(); }

  private:
    std::size_t Index(long long index) const {
        if (index < 0 || index >= static_cast<long long>(Size)) [[unlikely]] {
            FailOutsideList(name_, index, Size);
        }
        return static_cast<std::size_t>(index);
    }

    const char* name_;
    std::array<Value, Size> entries_{};
};
