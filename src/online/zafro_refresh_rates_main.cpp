// zafro-refresh-rates FEED TARGET: writes the bank's feed, read from the file FEED, to
// TARGET in the form the suite reads. The target is replaced whole or not at all; a
// feed that is refused leaves it as it was, with the reason on standard error.

#include "online/rates_feed.h"

#include <QFile>
#include <QSaveFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: zafro-refresh-rates FEED TARGET\n");
        return 2;
    }
    QFile feed(QString::fromLocal8Bit(argv[1]));
    if (!feed.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "zafro-refresh-rates: cannot read %s; the rates stay as they are\n",
                     argv[1]);
        return 1;
    }
    const zafro::RatesRewrite rewrite = zafro::rewriteRatesFeed(feed.readAll());
    if (!rewrite.ok) {
        std::fprintf(stderr, "zafro-refresh-rates: feed refused: %s; the rates stay as they are\n",
                     rewrite.reason.toLocal8Bit().constData());
        return 1;
    }
    QSaveFile target(QString::fromLocal8Bit(argv[2]));
    if (!target.open(QIODevice::WriteOnly) || target.write(rewrite.document) < 0 ||
        !target.commit()) {
        std::fprintf(stderr, "zafro-refresh-rates: cannot write %s; the rates stay as they are\n",
                     argv[2]);
        return 1;
    }
    return 0;
}
