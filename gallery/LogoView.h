#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QPixmap;

/// One link of the chain of logos: what it is, the picture in small, words on it, and its path.
class LogoView final : public QWidget
{
    Q_OBJECT

public:
    explicit LogoView(QWidget *parent = nullptr);

    /// What the link is, also for users who do not see it.
    void setTitle(const QString &text);

    /// Where its file is. None by default.
    void setPath(const QString &text);

    /// A null picture leaves the place empty. The words are plain text.
    void showLogo(const QPixmap &picture, const QString &text);

private:
    void setUpLayout();

    QLabel *title;
    QLabel *preview;
    QLabel *words;
    QLabel *path;
};
