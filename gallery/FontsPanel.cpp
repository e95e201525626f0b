#include "FontsPanel.h"

#include "LeftToRight.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QRawFont>

namespace {

constexpr int kSpecimenPixels = 22;
constexpr qsizetype kMostSigns = 14;
/// Where icon fonts have their signs.
constexpr char16_t kFirstSign = 0xf000;
constexpr char16_t kLastSign = 0xf8ff;

QString specimenOf(const QRawFont &font)
{
    if (font.supportsCharacter(u'A')) {
        return QString::fromUtf8("Aa Bb Cc 0123 äöü éñç ΔE 2,3");
    }
    QString signs;
    for (char16_t sign = kFirstSign; sign <= kLastSign && signs.size() < 2 * kMostSigns; ++sign) {
        if (font.supportsCharacter(QChar(sign))) {
            signs += QChar(sign);
            signs += u' ';
        }
    }
    return signs.trimmed();
}

} // namespace

FontsPanel::FontsPanel(const QString &folder, QWidget *parent)
    : GalleryPanel(parent)
    , folder(folder)
    , emptyText(new QLabel(this))
{
    auto *grid = new QGridLayout(this);
    setMargins(grid);
    grid->setHorizontalSpacing(2 * kGap);
    grid->setColumnStretch(1, 1);
    emptyText->setWordWrap(true);
    emptyText->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(emptyText, 0, 0, 1, 2);
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.ttf")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        addRow(grid, file.absoluteFilePath());
    }
    emptyText->setVisible(rows.isEmpty());
    retranslate();
}

void FontsPanel::retranslate()
{
    setTitle(tr("Fonts"));
    emptyText->setText(tr("There are no fonts in %1").arg(pathInText(folder)));
    for (const Row &row : rows) {
        row.name->setText(row.family.isEmpty()
                              ? row.fileName
                              : tr("%1, from %2", "family and file").arg(row.family, row.fileName));
        if (row.family.isEmpty()) {
            row.specimen->setText(tr("This file is no font."));
        } else {
            row.specimen->setAccessibleName(tr("Specimen of %1").arg(row.family));
        }
    }
}

void FontsPanel::addRow(QGridLayout *grid, const QString &path)
{
    const QRawFont font(path, kSpecimenPixels);
    const Row row = {QFileInfo(path).fileName(), font.isValid() ? font.familyName() : QString(),
                     new QLabel(this), new QLabel(this)};
    row.name->setTextFormat(Qt::PlainText);
    if (font.isValid()) {
        QFont ofSpecimen(row.family);
        ofSpecimen.setPixelSize(kSpecimenPixels);
        row.specimen->setFont(ofSpecimen);
        row.specimen->setText(specimenOf(font));
    }
    const int line = grid->rowCount();
    grid->addWidget(row.name, line, 0);
    grid->addWidget(row.specimen, line, 1);
    rows.append(row);
}
