// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"
#include "shell/backup_list.h"

class ListBox;
class QLabel;
class QLayout;
class QLineEdit;

/// Copies data files between the program's folder and the folder `Backup` in it, one by one or all.
///
/// A copy keeps the date of its file and replaces what was there; what a restored file replaces is
/// kept as all of the user's is. Files restored are not read into the running program.
class Backup final : public Form {
    Q_OBJECT
  public:
    Backup(Program& program, QWidget* parent);

    void Load() override;

  private:
    /// One of the two folders, as it is shown.
    struct Side {
        explicit Side(std::string_view folder) : files(folder) {}

        BackupList files;
        QLineEdit* path = nullptr;
        ListBox* list = nullptr;
    };

    QLayout* MakeSide(Side& side, QLabel* title, const QString& pathName, const QString& listName,
                      QWidget* copyAll);
    QLayout* MakeCopyButtons();
    QWidget* MakeCopyAll(const QString& name, const QString& caption, const QString& toolTip,
                         Side& from, Side& to);

    void ReadDir();
    void Fill(Side& side);
    void CopySelected(Side& from, Side& to);
    std::string CopyChosen(Side& from, Side& to);
    void Renew(Side& side, const std::string& name);
    void CopyAll(Side& from, Side& to);

    Side data_;
    Side backups_;
};
