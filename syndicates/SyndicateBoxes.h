// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "platform/system/MessageBoxes.h"
#include "syndicates/PersonBoxes.h"
#include "syndicates/syndicate_files.h"

/// The boxes for the details of a syndicate: its name, `Text1(7)`, and those of its manager.
class SyndicateBoxes final : public QWidget {
    Q_OBJECT
  public:
    /// How the boxes stand: all in one column, or the address beside the others.
    enum class Columns { One, Two };

    explicit SyndicateBoxes(Columns columns);

    SyndicateDetails Typed() const;
    void Show(const SyndicateDetails& details);

    QLineEdit* Syndicate() const { return syndicate_; }
    const PersonBoxes& Manager() const { return manager_; }

    /// The labels of the boxes, for the skin.
    static QStringList Labels();

  Q_SIGNALS:
    /// The text of a box has changed, by typing or by `Show`.
    void changed();

  private:
    QLineEdit* syndicate_;
    PersonBoxes manager_;
};

/// The warning that a syndicate needs two names, in the words of the form.
Message NamesMissing(const QString& text);
