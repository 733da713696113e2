// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "databases/import_session.h"

class QComboBox;
class QCheckBox;
class QLabel;
class QLayout;
class RoleHeader;
class RowTable;

/// How a source is read: what was understood of it, each guess open to change, over its first rows
/// as they came.
class ImportReadingPage final : public QWidget {
    Q_OBJECT
  public:
    explicit ImportReadingPage(QWidget* parent = nullptr);

    void Show(const ImportSession& session);

  Q_SIGNALS:
    void encodingChosen(ImportEncoding encoding);
    void separatorChosen(ImportSeparator separator);
    void roleChosen(std::size_t column, ColumnRole role);
    void mappingChosen(const ImportMapping& mapping);

  private:
    QComboBox* AddChoice(const QString& name, const QString& title, const QStringList& choices);
    QLayout* MakeChoices();
    void ConnectChoices();
    void ShowChoices(const ImportSession& session);
    void ShowProducts(const std::vector<std::string>& products);
    void ShowNotes(const ImportSession& session);
    void ShowTable(const ImportSession& session);
    void ChangeMapping();

    /// A choice with its title, offered where it has a meaning.
    struct Choice {
        QLabel* title;
        QComboBox* box;
    };
    void Offer(const QComboBox* box, bool offered);

    ImportMapping mapping_;
    std::vector<Choice> choices_;
    QComboBox* encoding_;
    QComboBox* separator_;
    QComboBox* dateOrder_;
    QComboBox* picks_;
    QComboBox* keptExtra_;
    QComboBox* drum_;
    QComboBox* sameDate_;
    QComboBox* product_;
    QCheckBox* heading_;
    QLabel* notes_;
    RoleHeader* header_;
    RowTable* rows_;
};
