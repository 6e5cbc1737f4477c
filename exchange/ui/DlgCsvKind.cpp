#include "exchange/ui/DlgCsvKind.h"

#include "lum_sdk/DpiScale.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kLeastWidth = 460;

QLabel* plainLabel(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

CsvHead::Kind DlgCsvKind::ask(QWidget* parent, const QString& path, const QStringList& firstLines)
{
    DlgCsvKind dialog(parent, path, firstLines);
    dialog.exec();
    return dialog.m_kind;
}

DlgCsvKind::DlgCsvKind(QWidget* parent, const QString& path, const QStringList& firstLines)
    : Dialog(parent)
{
    setObjectName(QStringLiteral("DlgCsvKind"));
    setWindowTitle(QFileInfo(path).fileName());
    auto* const rows = makeMainLayout();
    rows->addWidget(plainLabel(tr("The heading of \"%1\" does not tell what the file holds. Are "
                                  "these design points or survey results?")
                                   .arg(QFileInfo(path).fileName()),
                               this));
    auto* const head = plainLabel(firstLines.join(QLatin1Char('\n')), this);
    head->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    head->setFrameShape(QFrame::StyledPanel);
    head->setToolTip(tr("The first lines of the file"));
    rows->addWidget(head);
    rows->addStretch();
    addButtons();
    const int width = std::max(dpi_scaled(kLeastWidth), sizeHint().width());
    resize(width, layout()->totalHeightForWidth(width)); // the lines of text break
}

void DlgCsvKind::addButtons()
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    const auto add = [&](const QString& text, CsvHead::Kind kind) {
        auto* const button = buttons->addButton(text, QDialogButtonBox::AcceptRole);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, kind] {
            m_kind = kind;
            accept();
        });
    };
    add(tr("&Design Points"), CsvHead::Kind::Design);
    add(tr("&Survey Results"), CsvHead::Kind::Survey);
    buttons->button(QDialogButtonBox::Cancel)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setFocus();
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}
