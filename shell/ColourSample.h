// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QLabel>

/// A field that shows a colour: its words in it or, where it has none, itself filled with it. A
/// click, a double click, Space and Enter each tell once that another one is wanted.
///
/// Words stand on white or on black, whichever they are read on best, as the colour may be made for
/// a background that is not there.
class ColourSample final : public QLabel {
    Q_OBJECT
  public:
    ColourSample(const QString& name, const QString& words, const QString& toolTip);

    QColor Colour() const { return colour_; }
    void ShowColour(const QColor& colour);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  Q_SIGNALS:
    void clicked();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor colour_;
    bool pressed_ = false;
    quint64 toldAt_ = 0;  // by the events' clock; 0 before the first click
};
