#pragma once

// The maker's server republishes the central bank's daily reference rates in the form
// the suite reads: the bank's own envelope and dated cube, every rate text as the bank
// wrote it, the currencies in the bank's order except that DKK stands fifth, where the
// suite's update looks for it to know the document.

#include <QByteArray>
#include <QString>

namespace zafro {

struct RatesRewrite {
    bool ok = false;
    QByteArray document; // the feed to serve, when ok
    QString reason;      // why the feed was refused, when not
};

// A feed is refused when it is not well-formed XML, holds no dated cube with at least
// ten currency and rate pairs, or has no DKK.
RatesRewrite rewriteRatesFeed(const QByteArray &feed);

} // namespace zafro
