// A host that ends without letting go of its item, in the way that its argument names.

#include "inodeclient.h"
#include "lframenode.h"
#include "ltexteffectnode.h"
#include "pluginhost.h"

#include <QApplication>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<LTextEffectNode> s_node;

/** Lets the plug-in be asked for when the application is long gone. */
struct AsksLate
{
    bool isWanted = false;
    ~AsksLate()
    {
        if (isWanted && loadedClient() != nullptr) {
            std::fputs("a client without an application\n", stderr);
        }
    }
};
AsksLate s_asksLate;

void bind(Lum::INodeClient *client, bool isUnsaved)
{
    s_node->SetSize(QSize(128, 48));
    client->Init(s_node.get());
    client->GetClient()->show();
    QApplication::processEvents();
    if (isUnsaved) {
        auto *const view = client->GetClient()->findChild<QTextEdit *>("RichView");
        QTest::keyClicks(view, "not stored yet");
    }
}

/** What a platform without windows says of every window. */
void quietPlatform(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.contains("propagateSizeHints")) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(quietPlatform);
    const QByteArray way = argc > 1 ? argv[1] : "return";
    auto application = std::make_unique<QApplication>(argc, argv);
    Lum::INodeClient *const client = loadedClient();
    s_node = std::make_unique<LTextEffectNode>();
    auto window = std::make_unique<QWidget>();
    if (way != "never-bound") {
        bind(client, way == "unsaved");
    }
    std::puts("bound");
    std::fflush(stdout);
    s_asksLate.isWanted = way == "from-a-static";
    if (way == "exit") {
        window.release();
        application.release();
        std::exit(0);
    }
    if (way == "window-first") {
        client->GetClient()->setParent(window.get());
        window->show();
    }
    if (way == "attributes-elsewhere") {
        client->GetAttributesWidget(s_node.get())->setParent(window.get());
        window->show();
    }
    if (way == "quit") {
        QTimer::singleShot(10, application.get(), &QApplication::quit);
        QApplication::exec();
    }
    window.reset();
    if (way == "nodes-first") {
        s_node.reset();
    }
    application.reset(); // what is still there of the item goes behind it
    return 0;
}
