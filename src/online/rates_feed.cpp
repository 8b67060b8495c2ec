#include "online/rates_feed.h"

#include <pugixml.hpp>

#include <cstring>
#include <sstream>

namespace zafro {

namespace {

constexpr int kFewestPairs = 10;
constexpr int kDkkPlace = 5;

bool isRate(const pugi::xml_node &node)
{
    return std::strcmp(node.name(), "Cube") == 0 && node.attribute("currency") &&
           node.attribute("rate");
}

RatesRewrite refused(const QString &reason)
{
    RatesRewrite r;
    r.reason = reason;
    return r;
}

} // namespace

RatesRewrite rewriteRatesFeed(const QByteArray &feed)
{
    pugi::xml_document doc;
    // Declaration, comments and instructions are kept: the suite counts them as nodes.
    const unsigned options =
        pugi::parse_default | pugi::parse_declaration | pugi::parse_comments | pugi::parse_pi;
    const pugi::xml_parse_result parsed =
        doc.load_buffer(feed.constData(), std::size_t(feed.size()), options, pugi::encoding_utf8);
    if (!parsed || !doc.document_element())
        return refused(QStringLiteral("not a well-formed XML document (%1)")
                           .arg(QString::fromUtf8(parsed.description())));

    pugi::xml_node dated = doc.find_node([](const pugi::xml_node &node) {
        return std::strcmp(node.name(), "Cube") == 0 && node.attribute("time");
    });
    if (!dated)
        return refused(QStringLiteral("no dated cube of rates"));

    int pairs = 0;
    pugi::xml_node dkk;
    for (const pugi::xml_node &child : dated.children()) {
        if (!isRate(child))
            continue;
        ++pairs;
        if (std::strcmp(child.attribute("currency").value(), "DKK") == 0 && !dkk)
            dkk = child;
    }
    if (pairs < kFewestPairs)
        return refused(QStringLiteral("%1 currencies, fewer than %2").arg(pairs).arg(kFewestPairs));
    if (!dkk)
        return refused(QStringLiteral("no DKK rate"));

    // The element that DKK must stand before, counted without DKK itself.
    pugi::xml_node before;
    int place = 0;
    for (const pugi::xml_node &child : dated.children()) {
        if (child.type() != pugi::node_element || child == dkk)
            continue;
        if (++place == kDkkPlace) {
            before = child;
            break;
        }
    }
    if (before)
        dated.insert_move_before(dkk, before);
    else
        dated.append_move(dkk);

    std::ostringstream out;
    doc.save(out, "\t", pugi::format_default, pugi::encoding_utf8);
    RatesRewrite r;
    r.ok = true;
    r.document = QByteArray::fromStdString(out.str());
    return r;
}

} // namespace zafro
