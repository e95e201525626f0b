#include "BoldTitlePanel.h"

#include "ChartComparison.h"
#include "ChartPatches.h"

#include "TXGroupBoxBolded.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace {

constexpr int kDecimals = 2;
constexpr double kTolerance = 2.0;

enum LineNumber {
    Verdict,
    Mean,
    Largest,
    FirstPatch,
};

QFont bold(const QWidget *widget)
{
    QFont font = widget->font();
    font.setBold(true);
    return font;
}

} // namespace

BoldTitlePanel::BoldTitlePanel(QWidget *parent)
    : GalleryPanel(parent)
    , bolded(new TXGroupBoxBolded(this))
    , plain(new QGroupBox(this))
    , addButton(new QPushButton(this))
    , weightsButton(new QPushButton(this))
{
    setUpLayout();
    for (int line = Verdict; line < FirstPatch; ++line) {
        addLine();
    }
    lines[Verdict].left->setFont(bold(lines[Verdict].left));
    lines[Verdict].right->setFont(bold(lines[Verdict].right));
    plain->setFont(bold(plain));
    retranslate();
    connect(addButton, SIGNAL(clicked()), this, SLOT(addResult()));
    connect(weightsButton, SIGNAL(clicked()), this, SLOT(updateWeights()));
}

void BoldTitlePanel::retranslate()
{
    setTitle(tr("Bold titles"));
    bolded->setTitle(tr("Proof, bold title"));
    plain->setTitle(tr("Proof, bold font"));
    for (qsizetype line = 0; line < lines.size(); ++line) {
        lines[line].left->setText(textOf(line));
        lines[line].right->setText(textOf(line));
    }
    setButtonText(addButton, tr("Add R&esult"));
    setButtonText(weightsButton, tr("&Update Weights"));
}

/// As bold as the title until the weights are updated.
void BoldTitlePanel::addResult()
{
    addLine();
    addButton->setEnabled(lines.size() < FirstPatch + kChartColumns);
    retranslate();
}

void BoldTitlePanel::updateWeights()
{
    bolded->hide();
    bolded->show();
}

void BoldTitlePanel::addLine()
{
    lines.append(Line{new QLabel(bolded), new QLabel(plain)});
    bolded->layout()->addWidget(lines.last().left);
    plain->layout()->addWidget(lines.last().right);
}

QString BoldTitlePanel::textOf(qsizetype line) const
{
    const QList<PatchPair> pairs = ChartComparison::samePatches();
    const DifferenceStatistics statistics =
        ChartComparison::statistics(pairs, DifferenceFormula::Ciede2000, kTolerance);
    const auto text = [this](double value) {
        return locale().toString(value, 'f', kDecimals);
    };
    switch (line) {
    case Verdict:
        return statistics.largest > kTolerance ? tr("Not passed") : tr("Passed");
    case Mean:
        return tr("Mean ΔE %1").arg(text(statistics.mean));
    case Largest:
        return tr("Largest ΔE %1").arg(text(statistics.largest));
    default:
        const PatchPair &pair = pairs.at(line - FirstPatch);
        return tr("%1: ΔE %2")
            .arg(chartPatches().at(size_t(pair.newer)).translatedName(), text(pair.ciede2000));
    }
}

void BoldTitlePanel::setUpLayout()
{
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(kGap);
    for (QGroupBox *box : {static_cast<QGroupBox *>(bolded), plain}) {
        auto *column = new QVBoxLayout(box);
        column->setAlignment(Qt::AlignTop);
        boxes->addWidget(box, 1);
    }
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(weightsButton);
    buttons->addStretch();
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(boxes, 1);
    rows->addLayout(buttons);
}
