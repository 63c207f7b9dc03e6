// Page walk in pages per second, and the time from a cold start to the first painted page.
#include "app/winfkt.h"
#include "lexicon/pagelayout.h"
#include "lexicon/pagestore.h"
#include "platform/container.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {
double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}
}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    setenv("QUORIX_HOME", QUORIX_BUILD_DIR, 0);
    app::ausnahmenAufKonsole = true;
    QApplication a(argc, argv);

    std::vector<double> raten;
    int seiten = 0;
    {
        app::TForm1 f(true);
        f.resize(1008, 730);
        f.show();
        QApplication::processEvents();
        f.B2C();
        for (int i = 0; i < 5; ++i) {
            QElapsedTimer t;
            t.start();
            seiten = f.M766C();
            raten.push_back(seiten / (t.nsecsElapsed() / 1e9));
        }
    }
    std::printf("page walk, %d pages (pages/s)\t%.0f\t-\t-\n", seiten, median(raten));

    // The layout pass alone over the same pages, without the list box and the window around it.
    {
        lexicon::PageStore store(std::string(QUORIX_BUILD_DIR) + "/000/");
        platform::Picture bild(800, 640);
        std::array<platform::Picture, 5> marker{platform::Picture(16, 16), platform::Picture(16, 16),
                                                platform::Picture(16, 16), platform::Picture(16, 16),
                                                platform::Picture(16, 16)};
        std::vector<double> r2;
        for (int lauf = 0; lauf < 5; ++lauf) {
            QElapsedTimer t;
            t.start();
            int n = 0;
            for (int s = 0; s < seiten; ++s) {
                const int L = store.kopfzeile(s);
                if (L <= 0)
                    continue;
                bild.fill(platform::clWhite);
                platform::Canvas c(bild);
                lexicon::SeitenMaler m(c, lexicon::SeitenEinstellungen{}, marker, {});
                m.maleSeite(store.seitenblock, L, 800, false);
                ++n;
            }
            r2.push_back(n / (t.nsecsElapsed() / 1e9));
        }
        std::printf("page layout and drawing alone (pages/s)\t%.0f\t-\t-\n", median(r2));
    }

    // Full-text search over the whole lexicon against grep -F over the same inflated text.
    {
        app::TForm1 f(true);
        lexicon::PageStore store(std::string(QUORIX_BUILD_DIR) + "/000/");
        const int bloecke = store.letzterBlock();
        const std::string datei = "/tmp/quorix_bench_lexikon.txt";
        {
            std::string alles;
            for (int b = 1; b <= bloecke; ++b)
                alles += platform::joinLines(
                    platform::loadTextResource(std::string(QUORIX_BUILD_DIR) + "/000/tlexikon.dll", "10", "t" + std::to_string(b)));
            platform::writeFileSafely(datei, alles);
        }
        std::vector<double> eigen, grep;
        size_t treffer = 0;
        for (int i = 0; i < 7; ++i) {
            QElapsedTimer t;
            t.start();
            treffer = f.volltextSuchen("Funktion", "").size();
            eigen.push_back(t.nsecsElapsed() / 1e6);
            QElapsedTimer g;
            g.start();
            QProcess q;
            q.start("grep", {"-F", "-c", "Funktion", QString::fromStdString(datei)});
            q.waitForFinished(30000);
            grep.push_back(g.nsecsElapsed() / 1e6);
        }
        std::printf("full-text search, %d blocks, %zu hits (ms)\t%.2f\t%.2f\t%.2f\n", bloecke, treffer, median(eigen),
                    median(grep), median(eigen) / median(grep));
    }

    // Cold start of the program to its first page: a fresh process each time.
    const QString quorix = QString(QUORIX_BUILD_DIR) + "/quorix";
    QProcess p;
    p.start(quorix, {"keywords"});
    p.waitForFinished(30000);
    const QString erstes = QString::fromUtf8(p.readAllStandardOutput()).split('\n').value(0).section('\t', 0, 0);
    std::vector<double> zeiten;
    for (int i = 0; i < 7; ++i) {
        QElapsedTimer t;
        t.start();
        QProcess q;
        q.start(quorix, {"page", erstes, "--png", "/dev/null"});
        q.waitForFinished(30000);
        zeiten.push_back(t.nsecsElapsed() / 1e6);
    }
    std::printf("start to first painted page (ms)\t%.1f\t-\t-\n", median(zeiten));
    return 0;
}
