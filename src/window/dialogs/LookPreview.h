// A preview of the table's background, with or without a card back on it.
#pragma once

#include <QWidget>

class LookPreview : public QWidget {
    Q_OBJECT
public:
    explicit LookPreview(const char* name, QWidget* parent = nullptr);

    /// As mPictures::SetBG takes it.
    void SetBG(int background, int fade, int customColor);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int background_ = 0;
    int fade_ = 0;
    int customColor_ = 0;
};

/// A card of each suit, open, in the size that they have on the table.
class SuitsPreview : public QWidget {
    Q_OBJECT
public:
    explicit SuitsPreview(const char* name, QWidget* parent = nullptr);

    void SetFourColors(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool fourColors_ = false;
};

/// One card, closed, in the size that it has on the table.
class BackPreview : public QWidget {
    Q_OBJECT
public:
    explicit BackPreview(const char* name, QWidget* parent = nullptr);

    void SetDeckPic(int deck);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int deck_ = 0;
};
