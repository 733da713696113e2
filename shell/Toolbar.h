// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QToolButton>
#include <array>

class MainMenu;
struct Region;

/// A picture of the toolbar: a button without a frame, with a border inside its edge while the
/// mouse was last seen over it.
class ToolbarPicture final : public QToolButton {
    Q_OBJECT
    Q_PROPERTY(bool bordered READ Bordered)
    Q_PROPERTY(bool dimmed READ Dimmed)
  public:
    ToolbarPicture(int index, const QString& toolTip, QWidget* parent);

    bool Bordered() const { return bordered_; }
    void SetBordered(bool bordered);

    /// A dimmed picture stands for something that cannot be opened yet.
    bool Dimmed() const { return dimmed_; }
    void SetDimmed(bool dimmed);

  Q_SIGNALS:
    void mouseOver();

  protected:
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool bordered_ = false;
    bool dimmed_ = false;
    bool focusVisible_ = false;
};

/// The row of sixteen pictures on their background. The Tab key stops at one of them, the one that
/// had the focus last; the arrow keys, Home and End go to the others. The label's text stands at
/// the right end, where a long command tells how far it is.
class Toolbar final : public QLabel {
    Q_OBJECT
  public:
    static constexpr int pictureCount = 16;

    /// The region tells which download is the user's: the UK one where dates are British ones.
    Toolbar(const Region& region, QWidget* parent);

    /// The menu entry that the picture stands for.
    QString EntryOf(int index) const;

    ToolbarPicture* Picture(int index) const {
        return pictures_.at(static_cast<std::size_t>(index));
    }

    /// Gives the pictures what they show; until then their places are empty.
    void LoadPictures();

    /// Dims the pictures whose entry the menu does not answer.
    void DimPictures(const MainMenu& menu);

    /// Shows the pictures, once they are loaded, on the menu entries that they stand for.
    void GivePicturesTo(const MainMenu& menu) const;

    /// Takes the border from every picture.
    void ClearBorders();

  Q_SIGNALS:
    /// Somebody has clicked the picture of this menu entry.
    void chosen(const QString& menuEntry);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void MoveBorderTo(int index);
    void MoveFocusTo(int index);
    void PaintStatus(QPainter& painter) const;

    std::array<ToolbarPicture*, pictureCount> pictures_{};
    QString download_;
    int current_ = 0;  // at which the Tab key stops
};
