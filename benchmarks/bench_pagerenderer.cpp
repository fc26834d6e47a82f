// The page image of a document that is being edited, drawn and placed inside its item. The floor
// fills an image and draws the same first page of a document that is laid out already; how long the
// document is must not show.

#include "contentplacement.h"
#include "documentsetup.h"
#include "floors.h"
#include "itemdocument.h"
#include "pagerenderer.h"

#include <QTextCursor>

using namespace lctrlsex;

namespace {

QString longText(int paragraphs)
{
    QString html;
    for (int i = 0; i < paragraphs; ++i) {
        html += QStringLiteral("<p style=\"margin:0\"><span style=\"font-family:'DejaVu Sans';"
                               "font-size:16pt;color:#ffffff\">Departures from platform %1 are "
                               "</span><span style=\"font-family:'DejaVu Sans';font-size:16pt;"
                               "color:#ffb000\">delayed by %2 minutes</span></p>")
                    .arg(i)
                    .arg(i % 60);
    }
    return html;
}

/** A document of a view and the same one laid out for the page, ready to be drawn. */
class Documents
{
public:
    Documents(int paragraphs, const PageStyle &style)
        : m_style(style)
    {
        prepareView(&m_edited, {});
        m_edited.setHtml(longText(paragraphs));
        m_laidOut.loadItem(longText(paragraphs), {});
        m_laidOut.setTextWidth(style.size.width());
    }

    void drawFloor()
    {
        QImage canvas(m_style.size, QImage::Format_ARGB32);
        floors::drawDocument(&m_laidOut, &canvas,
                             m_style.isTransparent ? QColor(Qt::transparent) : m_style.background);
        benchmark::DoNotOptimize(canvas.constBits());
    }

    void drawPage()
    {
        const QImage placed = placeContent(m_renderer.topPage(&m_edited, m_style), m_style.size,
                                           Qt::AlignVCenter, false);
        benchmark::DoNotOptimize(placed.constBits());
    }

    void editAtEnd()
    {
        QTextCursor cursor(&m_edited);
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(QStringLiteral("x"));
        cursor.deletePreviousChar();
    }

private:
    PageStyle m_style;
    ItemDocument m_edited;
    ItemDocument m_laidOut;
    PageRenderer m_renderer;
};

void pageImage(benchmark::State &state, int paragraphs, const PageStyle &style)
{
    Documents documents(paragraphs, style);
    floors::besideFloors(state, [&] { documents.drawPage(); }, {{"draw", [&] {
                                                                     documents.drawFloor();
                                                                 }}});
}

/** An edit below the page: the floor makes the same edit and draws without any bookkeeping. */
void editBelow(benchmark::State &state, int paragraphs, const PageStyle &style)
{
    Documents documents(paragraphs, style);
    const auto edited = [&] {
        documents.editAtEnd();
        documents.drawPage();
    };
    const auto floor = [&] {
        documents.editAtEnd();
        documents.drawFloor();
    };
    floors::besideFloors(state, edited, {{"edit_draw", floor}});
}

void addAll()
{
    const auto add = [](const std::string &name, const auto &run) {
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    };
    for (const QSize &size : {QSize(256, 64), QSize(1920, 1080), QSize(3840, 2160)}) {
        for (const int paragraphs : {200, 2000}) {
            for (const bool transparent : {false, true}) {
                PageStyle style;
                style.size = size;
                style.isTransparent = transparent;
                style.background = QColor(20, 20, 40);
                const std::string name =
                    '/' + std::to_string(size.width()) + 'x' + std::to_string(size.height()) + '/' +
                    std::to_string(paragraphs) + (transparent ? "/transparent" : "/opaque");
                add("pageImage" + name,
                    [=](benchmark::State &state) { pageImage(state, paragraphs, style); });
                add("editBelow" + name,
                    [=](benchmark::State &state) { editBelow(state, paragraphs, style); });
            }
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    addAll();
    return floors::runBenchmarks(argc, argv);
}
