//! [page]
#pragma once

#include <ConfWidget.h>

class QSpinBox;

/// How the scanner reads: key "ScannerResolution", dots per inch, 300 when missing.
class ScannerPage : public ConfWidget
{
    Q_OBJECT

public:
    explicit ScannerPage(QWidget *parent = nullptr);

    void load(const QHash<QString, QVariant> &settings) override;
    QHash<QString, QVariant> save() override;

private:
    QSpinBox *resolution;
    bool isLoading = false;
};
//! [page]
