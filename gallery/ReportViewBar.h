#pragma once

#include <QList>
#include <QWidget>

class QComboBox;
class QLabel;
class QSpinBox;
class QToolButton;
class ReportView;

/// The strip above a ReportView: which page is seen, and how large.
class ReportViewBar final : public QWidget
{
    Q_OBJECT

public:
    /// Steers the view, which has to outlive the strip.
    explicit ReportViewBar(ReportView *view, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void showPage();
    void showZoom();
    void goToPage(int number);
    void goBack();
    void goOn();
    void zoomChosen(int index);

private:
    void retranslate();
    void setUpLayout();

    ReportView *view;
    QToolButton *backButton;
    QToolButton *onButton;
    QLabel *pageLabel;
    QSpinBox *pageBox;
    QLabel *countLabel;
    QToolButton *smallerButton;
    QToolButton *largerButton;
    QLabel *zoomLabel;
    QComboBox *zoomBox;
};
