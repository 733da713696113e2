// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QMenuBar>
#include <functional>

#include "core/settings.h"

class QAction;
struct EntryText;

/// The menu of the main window: every entry under its name, disabled until somebody answers it.
class MainMenu final : public QMenuBar {
    Q_OBJECT
  public:
    /// The links of the settings, and one more with a caption of its own.
    static constexpr int linkCount = setting::links + 1;

    explicit MainMenu(QWidget* parent = nullptr);

    /// The entry of that name; a name that the menu does not have is a `Failure`.
    QAction* Entry(const QString& name) const;

    /// Enables the entry and runs `handler` on each choice of it.
    void Answer(const QString& name, const std::function<void()>& handler);

    /// Enables the entry, or greys it and says in its tool-tip why nobody can choose it.
    void Allow(const QString& name, const QString& whyNot = {});

    /// Captions, addresses and visibility of `LinksLink(0)` to `LinksLink(9)` as the settings tell.
    void ShowLinks(const State& state);

  private:
    void Add(QMenu* menu, const EntryText& text);
    void AddLinks(QMenu* menu);

    QHash<QString, QAction*> entries_;
};
