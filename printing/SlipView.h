// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "printing/page.h"

/// Shows the marks of a sheet as small as there is room, on the paper that they are printed on.
/// Marks that begin outside of what the printer reaches are red.
class SlipView final : public QWidget {
    Q_OBJECT
  public:
    explicit SlipView(QWidget* parent = nullptr);

    /// Shows the first sheet of a slip, none where it has no sheet. The paper's corner lies
    /// `marginX`, `marginY` millimetres before the printer's origin.
    void Show(const Document& slip, double marginX, double marginY);

    /// How many marks begin above or to the left of what the printer reaches.
    int OutOfReach() const;

    QSize sizeHint() const override { return {200, 120}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRectF Shown() const;

    std::vector<FilledRectangle> marks_;
    double marginX_ = 0;
    double marginY_ = 0;
};
