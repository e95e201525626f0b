#pragma once

#include <QGroupBox>

class QLabel;
class QPushButton;

/// Opens the manual of the program, and asks for one that is not there.
class ManualPanel : public QGroupBox
{
    Q_OBJECT

public:
    /// The manual's name below the folder of the manuals.
    explicit ManualPanel(QString fileName, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void openManual();
    void openMissingManual();

private:
    void retranslate();

    QString fileName;
    QLabel *note;
    QPushButton *openButton;
    QPushButton *missingButton;
};
