#include "programmedocument.h"

#include "changerecorder.h"
#include "ltexteffectnode.h"
#include "movedsources.h"
#include "nodebuilder.h"
#include "programmekeys.h"
#include "treewatch.h"

#include <QDir>
#include <QFileInfo>
#include <QUndoStack>

#include <utility>

namespace workbench {

static constexpr int MostSteps = 500;

ProgrammeDocument::ProgrammeDocument(QObject *parent)
    : QObject(parent)
    , m_tree(new TreeWatch)
    , m_controller(newController())
    , m_history(new QUndoStack)
    , m_recorder(new ChangeRecorder(m_tree.get(), m_history.get()))
{
    m_history->setUndoLimit(MostSteps);
    m_tree->setRoot(m_controller.get());
    connect(m_history.get(), &QUndoStack::cleanChanged, this,
            [this](bool isClean) { emit modifiedChanged(!isClean); });
    connect(m_history.get(), &QUndoStack::indexChanged, this, [this] {
        announceTouched();
        emit contentsChanged();
    });
    connect(m_recorder.get(), &ChangeRecorder::recorded, this, &ProgrammeDocument::contentsChanged);
    connect(m_tree.get(), &TreeWatch::childRemoved, this, [this](LNode *, LNode *child) {
        if (m_recorder->isStepping()) {
            m_taken.append(child);
        } else {
            emit nodeTaken(child);
        }
    });
}

ProgrammeDocument::~ProgrammeDocument()
{
    // Steps own nodes that stand nowhere, and tell the recorder; nobody needs to hear of it now.
    m_history->disconnect(this);
    m_tree->disconnect(this);
    m_recorder->reset();
    m_history->clear();
}

LControllerNode *ProgrammeDocument::controller() const
{
    return m_controller.get();
}

TreeWatch *ProgrammeDocument::tree() const
{
    return m_tree.get();
}

QString ProgrammeDocument::fileName() const
{
    return m_fileName;
}

QString ProgrammeDocument::folder() const
{
    if (!m_fileName.isEmpty()) {
        return QFileInfo(m_fileName).absolutePath();
    }
    return m_origin.isEmpty() ? QDir::homePath() : m_origin;
}

QString ProgrammeDocument::displayName() const
{
    if (m_fileName.isEmpty()) {
        return tr("Untitled");
    }
    const QString name = QFileInfo(m_fileName).fileName();
    const QString ending = QStringLiteral(".programme.json");
    return name.size() > ending.size() && name.endsWith(ending) ? name.chopped(ending.size())
                                                                : name;
}

bool ProgrammeDocument::isModified() const
{
    return !m_history->isClean();
}

QUndoStack *ProgrammeDocument::history() const
{
    return m_history.get();
}

void ProgrammeDocument::newProgramme()
{
    install(newController(), QString());
}

/** A pipe or a device would be read until somebody else ends it, and the window with it. */
ReadProgramme ProgrammeDocument::loadFile(const QString &fileName)
{
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile()) {
        ReadProgramme read;
        read.error.reason = tr("this is no regular file");
        read.error.remedy = tr("name a *.programme.json file");
        return read;
    }
    return loadProgramme(info.absoluteFilePath());
}

ProgrammeError ProgrammeDocument::open(const QString &fileName)
{
    ReadProgramme read = loadFile(fileName);
    if (read.controller) {
        install(std::move(read.controller), QFileInfo(fileName).absoluteFilePath());
    }
    return read.error;
}

ProgrammeError ProgrammeDocument::openCopy(const QString &fileName)
{
    ReadProgramme read = loadFile(fileName);
    if (read.controller) {
        install(std::move(read.controller), QString(), QFileInfo(fileName).absolutePath());
    }
    return read.error;
}

ProgrammeError ProgrammeDocument::restore(const QByteArray &programme, const QString &fileName)
{
    ReadProgramme read = readProgramme(programme);
    if (read.controller) {
        install(std::move(read.controller), fileName);
        m_history->resetClean();
        emit contentsChanged();
    }
    return read.error;
}

void ProgrammeDocument::install(std::unique_ptr<LControllerNode> controller,
                                const QString &fileName, const QString &origin)
{
    emit aboutToReplace();
    m_recorder->reset();
    m_tree->setRoot(nullptr);
    m_history->clear();
    m_controller = std::move(controller);
    m_tree->setRoot(m_controller.get());
    m_fileName = fileName;
    m_origin = origin;
    emit replaced();
    emit fileNameChanged();
}

ProgrammeError ProgrammeDocument::save()
{
    if (m_fileName.isEmpty()) {
        ProgrammeError error;
        error.reason = tr("the programme has no file yet");
        error.remedy = tr("save it under a name");
        return error;
    }
    return saveAs(m_fileName);
}

ProgrammeError ProgrammeDocument::saveAs(const QString &fileName)
{
    m_recorder->settle();
    const QString full = QFileInfo(fileName).absoluteFilePath();
    const QJsonObject before = rootMembers();
    moveMembers(QFileInfo(full).absolutePath());
    ProgrammeError error = saveProgramme(*m_controller, fileName);
    if (error.isSet()) {
        m_controller->setProperty(ProgrammeKeys::Unknown, before);
        return error;
    }
    if (full != m_fileName) {
        m_fileName = full;
        emit fileNameChanged();
    }
    m_history->setClean();
    emit saved();
    return error;
}

QByteArray ProgrammeDocument::contents()
{
    m_recorder->settle();
    const QJsonObject members = rootMembers();
    if (m_fileName.isEmpty()) {
        moveMembers(QDir::homePath()); // where it came from is known no more when it is restored
    }
    const QByteArray bytes = writeProgramme(*m_controller);
    m_controller->setProperty(ProgrammeKeys::Unknown, members);
    return bytes;
}

void ProgrammeDocument::moveMembers(const QString &to)
{
    m_controller->setProperty(ProgrammeKeys::Unknown,
                              sources::movedMembers(rootMembers(), folder(), to));
}

void ProgrammeDocument::attachTextEditor(LTextEffectNode *node, QTextEdit *view)
{
    m_recorder->attach(m_tree->contains(node) ? node : nullptr, view);
}

void ProgrammeDocument::detachTextEditor()
{
    m_recorder->detach();
}

void ProgrammeDocument::undo()
{
    if (isReady()) {
        m_history->undo();
    }
}

void ProgrammeDocument::redo()
{
    if (isReady()) {
        m_history->redo();
    }
}

bool ProgrammeDocument::isReady()
{
    m_recorder->settle();
    return !m_recorder->isStepping();
}

void ProgrammeDocument::announceTouched()
{
    const QVector<QPointer<LNode>> taken = std::exchange(m_taken, {});
    for (const QPointer<LNode> &node : taken) {
        if (node && !m_tree->contains(node)) {
            emit nodeTaken(node);
        }
    }
    const auto touched = m_recorder->takeTouched();
    for (const auto &[node, touch] : touched) {
        auto *const item = qobject_cast<LTextEffectNode *>(node.data());
        if (item && touch == ChangeRecorder::Reload && m_tree->contains(item)) {
            emit reloadItem(item);
        }
    }
    if (!touched.isEmpty() && m_tree->contains(touched.first().first)) {
        emit revealNode(touched.first().first);
    }
}

} // namespace workbench
