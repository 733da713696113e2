// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "platform/system/PrintTask.h"

/// The printers of the desktop. Corrections are kept in the user's settings.
class DesktopPrinters final : public Printers {
  public:
    /// What our own printer does with a task, over a window.
    using Preview = std::function<void(QWidget* parent, const PrintTask& task)>;

    explicit DesktopPrinters(Preview preview = {}) : preview_(std::move(preview)) {}

    void PreviewBy(Preview preview) { preview_ = std::move(preview); }

    /// The name of our own printer.
    static QString OwnName();

    QStringList Names() override;
    QString Current() override;
    void Choose(const QString& name) override { current_ = name; }
    void Print(QWidget* parent, const PrintJob& job) override { Print(parent, TaskOf(job)); }
    void PrintPicture(QWidget* parent, const PictureJob& job) override {
        Print(parent, TaskOf(job));
    }
    PageCorrection CorrectionOf(const QString& name) override;
    void SetCorrection(const QString& name, const PageCorrection& correction) override;

  private:
    void Print(QWidget* parent, const PrintTask& task);

    Preview preview_;
    QString current_;
};
