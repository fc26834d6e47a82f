// The page that an editor shows of its document and the page that is played are the same picture.

#include "documentstorage.h"
#include "itemdocument.h"
#include "itemrenderer.h"
#include "ltexteffectnode.h"
#include "nodepage.h"
#include "programmefile.h"
#include "programmeitems.h"

#include <QtTest>

using namespace lctrlsex;

class TestOneRenderer : public QObject
{
    Q_OBJECT
private slots:
    void editedPageIsThePlayedPage();
    void pagesFollowTheNode();
};

static int colorsOf(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

void TestOneRenderer::editedPageIsThePlayedPage()
{
    const ReadProgramme read =
        loadProgramme(QStringLiteral(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json"));
    QVERIFY(read.controller != nullptr);
    int compared = 0;
    for (const player::ProgrammeItem &item : player::programmeItems(read.controller.get())) {
        for (const int fontSpace : {0, 3}) {
            item.node->SetFontSpace(fontSpace);
            item.node->SetTextAntialias(fontSpace == 0);
            player::ItemRenderer played(item.node, item.place);
            if (played.pageCount() != 1) {
                continue; // further pages come from the player alone
            }
            ItemDocument edited;
            const TextSettings settings = textSettingsOf(item.node);
            prepareView(&edited, settings);
            edited.setHtml(decodeDocument(item.node->GetRawHtmlText()).html);
            applyLetterSpacing(&edited, settings);
            edited.setTextWidth(700);
            const PageStyle style = pageStyleOf(item.node);
            const QImage page = PageRenderer().topPage(&edited, style);
            const QImage shown =
                finishPage(page, style.size, pageFinishOf(item.node), hostEffects());
            QVERIFY2(shown == played.finishedPage(0), qPrintable(item.place));
            QCOMPARE(shown.format(), QImage::Format_ARGB32);
            ++compared;
        }
    }
    QVERIFY(compared >= 12);
}

void TestOneRenderer::pagesFollowTheNode()
{
    LTextEffectNode node;
    node.SetSize({64, 32});
    node.SetRawHtmlText(encodeDocument(QStringLiteral("<p style=\"color:#ffffff\">Aa</p>")));
    const auto page = [&node] {
        return player::ItemRenderer(&node, QString()).finishedPage(0);
    };
    const QImage plain = page();
    QCOMPARE(plain.pixel(63, 31), qRgb(0, 0, 0));
    QVERIFY(colorsOf(plain) > 2);
    node.SetTextAntialias(false);
    QCOMPARE(colorsOf(page()), 2);
    node.SetTextAntialias(true); // a hollow letter without soft edges may be as it was
    node.SetEditBgColor(255 * 65536);
    QCOMPARE(page().pixel(63, 31), qRgb(0, 0, 255));
    node.SetTransBgColor(true);
    QCOMPARE(page().pixel(63, 31), qRgb(1, 2, 1));
    const QImage centred = page();
    node.SetContentAlign(Qt::AlignBottom);
    QVERIFY(page() != centred);
    node.SetUseStroke(1);
    node.SetStrokeColor(255);
    const QImage stroked = page();
    node.SetUseHollow(1);
    QVERIFY(page() != stroked);

    player::ItemRenderer none(nullptr, QString());
    QVERIFY(!none.hasPages());
    QVERIFY(none.finishedPage(0).isNull());
}

QTEST_MAIN(TestOneRenderer)
#include "tst_onerenderer.moc"
