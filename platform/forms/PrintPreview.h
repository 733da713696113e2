// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"
#include "platform/system/PrintTask.h"

class ComboList;
class PageView;
class QLabel;
class QLayout;
class QPushButton;

/// The ways out of the preview; tests bring their own.
struct PreviewExits {
    /// Asks for printer and sheets and prints; returns the printer, none where nothing was printed.
    std::function<QString(QWidget* parent, const PrintTask& task)> print;
    /// Asks for the file, by a proposed name; none where the user has thought better of it.
    std::function<QString(QWidget* parent, const QString& proposed)> askForPdf;
    /// Writes the file whole; returns the reason where it cannot.
    std::function<QString(const QString& path, const QByteArray& pdf)> write;
};

/// Those of the desktop.
PreviewExits DesktopExits(Printers& printers);

/// Shows what would be printed, sheet by sheet, and prints it or saves it as a PDF.
class PrintPreview final : public Form {
    Q_OBJECT
  public:
    PrintPreview(Program& program, const PrintTask& task, PreviewExits exits, QWidget* parent);

    void Load() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLayout* MakeTools();
    QLayout* MakeActions();
    QPushButton* MakeTurn(const QString& name, const QString& icon, const QString& toolTip,
                          int step);
    void ChooseZoom();
    void StepZoom(int steps);
    void TurnTo(int sheet);
    void TellZoom();
    void Print();
    void SaveAsPdf();

    PrintTask task_;
    PreviewExits exits_;
    PageView* view_;
    ComboList* zoom_;
    QLabel* zoomShown_;
    QLabel* place_;
    QPushButton* back_ = nullptr;
    QPushButton* forth_ = nullptr;
};
