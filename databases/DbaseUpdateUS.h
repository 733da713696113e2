// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DownloadForm.h"

/// Downloads the draws of Mega Millions and Powerball, each into a database of its own.
class DbaseUpdateUS final : public DownloadForm {
    Q_OBJECT
  public:
    DbaseUpdateUS(Program& program, QWidget* parent);

  protected:
    void DownloadAll() override;
    SkinLabels Labels() const override;

  private:
    void DownloadMM();
    void DownloadPB();
    void Download(const Page& page, const QString& processing);
};
