#include "shape/previewwindow.h"

#include "shape/previewview.h"

#include <checklist/states.h>

#include <svgobj/csvgobj.h>

#include <framework/cundoredo.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QUndoStack>
#include <QtWidgets/QUndoView>
#include <QtWidgets/QVBoxLayout>

namespace shapetool {

using checklist::ShapeDriver;
using checklist::Subject;
using checklist::Subjects;

namespace {

constexpr QSize windowSize(1000, 640);

QUndoStack *sharedStack()
{
    return CUndoRedo::GetInstance()->stack();
}

/// The text of a key in English; the key where there is none.
QString textOf(const Subject &subject, const QString &key)
{
    return subject.plugin->texts(QStringLiteral("en")).value(key, key);
}

} // namespace

PreviewWindow::PreviewWindow(const QString &path)
    : m_path(path)
    , m_view(new PreviewView(this))
    , m_settings(new QFormLayout)
    , m_state(new QPlainTextEdit(this))
    , m_messages(new QLabel(this))
{
    layOut();
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &PreviewWindow::reload);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &PreviewWindow::reload);
    connect(sharedStack(), &QUndoStack::indexChanged, this, &PreviewWindow::showState);
    reload();
}

PreviewWindow::~PreviewWindow()
{
    // Clearing the stack with the shape would show a state that is gone.
    disconnect(sharedStack(), nullptr, this, nullptr);
    m_view->setShape(nullptr);
}

QString PreviewWindow::messages() const
{
    return m_messages->text();
}

void PreviewWindow::layOut()
{
    setWindowTitle(QStringLiteral("%1 - gliololok-shape").arg(QFileInfo(m_path).fileName()));
    resize(windowSize);
    m_state->setReadOnly(true);
    m_messages->setWordWrap(true);
    m_messages->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *settings = new QWidget(this);
    settings->setLayout(m_settings);
    auto *side = new QSplitter(Qt::Vertical, this);
    side->addWidget(settings);
    side->addWidget(new QUndoView(sharedStack(), this));
    side->addWidget(m_state);
    auto *parts = new QSplitter(this);
    parts->addWidget(m_view);
    parts->addWidget(side);
    parts->setStretchFactor(0, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_messages);
    layout->addWidget(parts, 1);
}

/// Editors replace a file, which ends watching it: its folder is watched, too.
void PreviewWindow::watch()
{
    const QStringList paths{m_path, QFileInfo(m_path).absolutePath()};
    for (const QString &path : paths)
        if (QFileInfo::exists(path) && !m_watcher.files().contains(path) && !m_watcher.directories().contains(path))
            m_watcher.addPath(path);
}

void PreviewWindow::reload()
{
    watch();
    auto subjects = std::make_unique<Subjects>(m_path);
    QStringList told;
    if (!subjects->problem().isEmpty())
        told.append(subjects->problem());
    const QVector<pagehost::PluginMessage> faults = subjects->faults();
    for (const pagehost::PluginMessage &fault : faults)
        told.append(fault.told());
    m_messages->setText(told.join(QLatin1Char('\n')));
    if (!subjects->all().isEmpty())
        showShape(std::move(subjects));
}

void PreviewWindow::showShape(std::unique_ptr<Subjects> subjects)
{
    const Subject &subject = subjects->all().first();
    auto shape = std::make_unique<ShapeDriver>(subject.plugin, subject.kindId);
    if (!shape->hasCore())
        return;
    shape->createByClick();
    shape->select();
    m_view->setShape(shape.get());
    m_shape = std::move(shape);
    m_subjects = std::move(subjects);
    sharedStack()->clear();
    showSettings();
    showState();
}

void PreviewWindow::showSettings()
{
    while (m_settings->rowCount() > 0)
        m_settings->removeRow(0);
    const QJsonArray settings = checklist::settingsOf(*m_shape);
    for (const QJsonValue &control : settings)
        addControl(control.toObject());
}

void PreviewWindow::addControl(const QJsonObject &control)
{
    const Subject &subject = m_subjects->all().first();
    const QString id = control[QStringLiteral("id")].toString();
    const QString title = textOf(subject, control[QStringLiteral("title")].toString());
    const auto answer = [this, id](const QString &text) { checklist::answer(*m_shape, {{id, text}}); };
    if (control[QStringLiteral("type")] == QLatin1String("switch")) {
        auto *box = new QCheckBox;
        box->setChecked(control[QStringLiteral("on")].toBool());
        connect(box, &QCheckBox::toggled, this,
                [answer](bool on) { answer(on ? QStringLiteral("true") : QStringLiteral("false")); });
        m_settings->addRow(title, box);
        return;
    }
    const QJsonArray entries = control[QStringLiteral("texts")].toArray();
    if (!entries.isEmpty()) {
        auto *list = new QComboBox;
        for (const QJsonValue &entry : entries)
            list->addItem(textOf(subject, entry.toString()));
        list->setCurrentIndex(control[QStringLiteral("index")].toInt());
        connect(list, QOverload<int>::of(&QComboBox::activated), this,
                [answer](int index) { answer(QString::number(index)); });
        m_settings->addRow(title, list);
        return;
    }
    auto *line = new QLineEdit(control[QStringLiteral("value")].toVariant().toString());
    connect(line, &QLineEdit::editingFinished, this, [answer, line] {
        if (line->isModified())
            answer(line->text());
        line->setModified(false);
    });
    m_settings->addRow(title, line);
}

void PreviewWindow::showState()
{
    if (m_shape)
        m_state->setPlainText(QString::fromUtf8(checklist::savedJson(*m_shape)));
}

} // namespace shapetool
