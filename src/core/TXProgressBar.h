#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

class TXGUICOMMON_EXPORT TXProgressBar : public QWidget
{
    Q_OBJECT

public:
    explicit TXProgressBar(QWidget *parent = nullptr);
    void setMessage(const QString &message);
    [[nodiscard]] int maximum() const;
    [[nodiscard]] int minimum() const;
    [[nodiscard]] int value() const;

public slots:
    void setRange(int minimum, int maximum);
    void setValue(int value);
};
