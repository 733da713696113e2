// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <span>

#include "platform/forms/Form.h"

/// One way into a form.
struct CatalogueEntry {
    const char*
        menuEntry;     ///< Name of the menu entry that opens it; empty: opened by another form.
    const char* form;  ///< The form's name.
    /// Makes the form, not yet loaded; none where the form does not exist yet.
    std::unique_ptr<Form> (*make)(Program&, QWidget* parent) = nullptr;
    /// Sets the option with which this entry opens the form, after it has been loaded.
    void (*prepare)(Form&) = nullptr;
    /// How often messages are let run between loading and `prepare`.
    int messageRuns = 5;
    /// Whether the form asks for saved entries: without any there is a message in its place.
    bool needsSavedEntries = false;
    /// Whether the form creates, deletes or downloads databases.
    bool changesDatabases = false;
    /// Whether the form changes the current syndicate or its name or manager.
    bool changesSyndicate = false;
    /// Whether the settings are read and applied afresh after the form has closed.
    bool changesSettings = false;
};

/// Every form with the menu entry that opens it. The main window, the tests and the screenshot tool
/// walk it.
std::span<const CatalogueEntry> FormCatalogue();

/// Where the entry with that menu entry stands; every form opened by the menu has one.
const CatalogueEntry* FindCatalogueEntry(const QString& menuEntry);
