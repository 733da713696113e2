// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "databases/DownloadForm.h"

/// Downloads the draws of the UK lotteries, each into a database of its own.
class DbaseUpdate final : public DownloadForm {
    Q_OBJECT
  public:
    DbaseUpdate(Program& program, QWidget* parent);

  protected:
    bool MayDownload() override;
    void DownloadAll() override;

  private:
    void DbaseDownload(int index);
};
