#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <memory>

class LTextEffectNode;

namespace player {
class ItemRenderer;
}

namespace workbench {

/**
 * The page files of one item at a time: pages before hollow, stroke and placement as PNG files in
 * a folder of this process, which goes with this object. One page is made in a turn of the event
 * loop, so that it stays responsive. Folders of processes that are gone are removed at the start.
 */
class PageFiles : public QObject
{
    Q_OBJECT

public:
    explicit PageFiles(QObject *parent = nullptr);
    ~PageFiles() override;

    /** Starts to write the pages; the node knows each when its file is complete. */
    void start(LTextEffectNode *node, std::shared_ptr<player::ItemRenderer> renderer);
    /** Takes the files from the node and stops writing. */
    void clear();
    [[nodiscard]] bool isWriting() const { return m_timer.isActive(); }

private:
    void writeNext();

    QPointer<LTextEffectNode> m_node;
    std::shared_ptr<player::ItemRenderer> m_renderer;
    QStringList m_files;
    QString m_folder;
    QTimer m_timer;
    quint64 m_set = 0; ///< Another number in the names, so that no two pages ever share one.
};

} // namespace workbench
