// SPDX-License-Identifier: LGPL-2.1-or-later
// The Speech page: a list of strings spoken with a pause, a field that speaks typed digits,
// the output and alert volumes, the installed alert sounds, and the media framework's
// encoders and version, all from this machine.
#include "../GalleryPages.h"

#include <Brixel/ZARNSounds.h>
#include <Brixel/ZARNSpeakingTextField.h>
#include <Brixel/ZARNSpeechSynthesizer.h>

#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QGroupBox *speechQueue()
{
    auto *box = new QGroupBox(QObject::tr("Speech queue"));
    auto *layout = new QFormLayout(box);
    QList<QLineEdit *> lines;
    for (const QString &text : {QObject::tr("Ready"), QObject::tr("Steady"), QObject::tr("Go")}) {
        lines.append(new QLineEdit(text));
        layout->addRow(QObject::tr("String %1").arg(lines.size()), lines.last());
    }
    auto *interval = new QDoubleSpinBox;
    interval->setRange(-1.0, 10.0);
    interval->setSingleStep(0.1);
    interval->setValue(-1.0);
    interval->setSpecialValueText(QObject::tr("Default (1.8 s)"));
    interval->setSuffix(QObject::tr(" s"));
    layout->addRow(QObject::tr("Interval"), interval);

    auto *buttons = new QHBoxLayout;
    auto *speak = new QPushButton(QObject::tr("Speak"));
    auto *stop = new QPushButton(QObject::tr("Stop"));
    buttons->addWidget(speak);
    buttons->addWidget(stop);
    buttons->addStretch();
    layout->addRow(buttons);
    QObject::connect(speak, &QPushButton::clicked, box, [lines, interval] {
        QStringList strings;
        for (const QLineEdit *line : lines)
            strings.append(line->text());
        ZARNSpeechSynthesizer::speakStrings(strings, interval->value());
    });
    QObject::connect(stop, &QPushButton::clicked, box, [] { ZARNSpeechSynthesizer::stopSpeaking(); });

    auto *digits = new ZARNSpeakingTextField;
    digits->setSpeakableCharacters(QStringLiteral("0123456789.,"));
    digits->setSpeaks(true);
    digits->setPlaceholderText(QObject::tr("Type digits, \".\" or \",\""));
    layout->addRow(QObject::tr("Speaking field"), digits);
    return box;
}

// The installed alert sounds, a Play button each, scrolled when there are many.
QWidget *alertSounds()
{
    const QStringList sounds = Brixel::ZARNSystemSoundPaths();
    if (sounds.isEmpty())
        return new QLabel(QObject::tr("None installed"));
    auto *list = new QWidget;
    auto *layout = new QFormLayout(list);
    for (const QString &path : sounds) {
        auto *play = new QPushButton(QObject::tr("Play"));
        QObject::connect(play, &QPushButton::clicked, list, [path] { Brixel::BXAlertSoundPlay(path); });
        layout->addRow(QFileInfo(path).completeBaseName(), play);
    }
    auto *scroll = new QScrollArea;
    scroll->setWidget(list);
    scroll->setWidgetResizable(true);
    scroll->setMinimumHeight(220);
    return scroll;
}

QGroupBox *volumesAndSounds()
{
    auto *box = new QGroupBox(QObject::tr("Volumes and alert sounds"));
    auto *layout = new QFormLayout(box);
    layout->addRow(QObject::tr("System volume"), new QLabel(QString::number(Brixel::BXSystemVolume(), 'f', 2)));
    layout->addRow(QObject::tr("Alert volume"), new QLabel(QString::number(Brixel::BXAlertVolume(), 'f', 2)));
    layout->addRow(QObject::tr("Alert sounds"), alertSounds());
    return box;
}

QString fourCharacters(quint32 code)
{
    const char text[] = {char(code >> 24), char(code >> 16), char(code >> 8), char(code), 0};
    return QString::fromLatin1(text);
}

QGroupBox *mediaFacts()
{
    auto *box = new QGroupBox(QObject::tr("Media framework"));
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(new QLabel(QObject::tr("Version %1").arg(Brixel::ZARNQuickTimeVersionString())));
    const QList<QVariantMap> components = Brixel::availableComponents();
    auto *table = new QTableWidget(int(components.size()), 3);
    table->setHorizontalHeaderLabels({QObject::tr("Name"), QObject::tr("Subtype"), QObject::tr("Manufacturer")});
    for (int row = 0; row < components.size(); ++row) {
        const QVariantMap &component = components.at(row);
        table->setItem(row, 0, new QTableWidgetItem(component.value(QStringLiteral("name")).toString()));
        table->setItem(row, 1, new QTableWidgetItem(fourCharacters(component.value(QStringLiteral("subtype")).toUInt())));
        table->setItem(row, 2, new QTableWidgetItem(fourCharacters(component.value(QStringLiteral("manufacturer")).toUInt())));
    }
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    layout->addWidget(table);
    return box;
}

} // namespace

QWidget *createSpeechPage()
{
    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    auto *left = new QVBoxLayout;
    left->addWidget(speechQueue());
    left->addWidget(volumesAndSounds());
    layout->addLayout(left);
    layout->addWidget(mediaFacts());
    return page;
}
