#include "GoodPlugin.h"

#include "ConfWidget.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace {

const QString kKey = QStringLiteral("enabled");

class GoodPage : public ConfWidget
{
    Q_OBJECT

public:
    explicit GoodPage(QWidget *parent)
        : ConfWidget(parent)
        , box(new QCheckBox(this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(box);
        connect(box, SIGNAL(clicked()), SIGNAL(confWidgetChanged()));
    }

    void load(const QHash<QString, QVariant> &settings) override
    {
        box->setChecked(settings.value(kKey).toBool());
    }

    QHash<QString, QVariant> save() override { return {{kKey, box->isChecked()}}; }

private:
    QCheckBox *box;
};

} // namespace

ConfWidget *GoodPlugin::createPage(QWidget *parent)
{
    return new GoodPage(parent);
}

#include "GoodPlugin.moc"
