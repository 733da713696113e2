// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

#include "platform/system/Services.h"

class QAbstractButton;

/// The names of a form's labels that take the text colours of the settings.
struct SkinLabels {
    QStringList title;
    QStringList body;
    QStringList small;
    QStringList status;
};

/// A form opened modally from the main window.
///
/// Esc and the title bar's cross click the form's close button, F1 opens its help page, Enter
/// clicks the button that has the focus, and where none has, the one that was made the default. A
/// form does its loading in `Load()`, which its opener calls once before `exec()`.
class Form : public QDialog {
    Q_OBJECT
  public:
    /// `name` is the form's name, `caption` its title.
    Form(Program& program, const QString& name, const QString& caption, QWidget* parent);

    /// What the form does when it is loaded: skin, lists, first selection.
    virtual void Load() {}

    /// Says beside the form's buttons, and to screen readers, what an action did, such as "10 lines
    /// saved for Wed 11 Jun 2025, Anna". It stands there until the next action. A form without a
    /// row of buttons has no such line, which is a `Failure`.
    void Say(const QString& text);

    void reject() override;
    void setVisible(bool visible) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    State& state() const { return program_.state; }

    /// The state for reading its tables, as a mutable access counts as a change of the table.
    const State& view() const { return View(program_.state); }

    ProgramFolder& folder() const { return program_.folder; }
    Services& services() const { return program_.services; }
    Program& program() const { return program_; }

    /// Lets the Tab key follow the form's layout, row by row, whatever was added last.
    void TabInReadingOrder();

    /// The button that Esc and the cross stand for.
    void SetCloseButton(QAbstractButton* button) { closeButton_ = button; }

    /// The size in which the form opens the first time, where the screen has the room. What the
    /// screen has no room for scrolls, and the size that the user gave the form comes again.
    void SetOpeningSize(const QSize& size) { openingSize_ = size; }

    /// The page that F1 and the help buttons open; "help.html" where none is set.
    void SetHelpPage(const QString& page) { helpPage_ = page; }

    /// Opens the help page from its beginning, as the help buttons do.
    void OpenHelp() const;

    /// Closes the form for good, without a click on the close button.
    void Unload();

    /// Background picture and colours as the settings say; `pictureFile` is named bare. A colour
    /// entry that is no number and a label that the form does not have are each a `Failure`.
    void Skinning(const QString& pictureFile, const SkinLabels& labels);

  private:
    /// Whether the screen has the room for the form, be it drawn together.
    bool FitsScreen() const;
    void TakeOpeningSize();
    void CloseAsTheUserDoes();

    Program& program_;
    QString helpPage_;
    QSize openingSize_;
    QAbstractButton* closeButton_ = nullptr;
    QPixmap picture_;
    bool opened_ = false;
    bool unloading_ = false;
};
