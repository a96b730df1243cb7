// SPDX-License-Identifier: GPL-2.0-or-later
// What libcups makes of an option, and what the server's parser would misread.
#include "jobs/OptionEncoding.h"

#include "queues/ServerConnection.h"

#include <QCoreApplication>
#include <algorithm>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("OptionEncoding", text);
}

// True if libcups does not know the option's type. It then sends the value as a name.
bool isUntyped(const QByteArray &keyword)
{
    const IppMessage probe(ippNew());
    char value[] = "x";
    QByteArray name = keyword;
    cups_option_t option = {name.data(), value};
    cupsEncodeOptions2(probe.get(), 1, &option, IPP_TAG_JOB);
    ipp_attribute_t *attribute = ippFindAttribute(probe.get(), keyword.constData(), IPP_TAG_ZERO);
    return attribute && ippGetValueTag(attribute) == IPP_TAG_NAME;
}

// True if the value survives being parsed again on the server (cupsParseOptions). There, a brace at the beginning opens
// a collection. If the last character does not close it, it swallows the options that follow.
bool isCarried(const QString &value)
{
    if (!value.startsWith(u'{'))
        return true;
    qsizetype depth = 0;
    for (qsizetype i = 0; i < value.size(); ++i) {
        depth += value[i] == u'{' ? 1 : value[i] == u'}' ? -1 : 0;
        if (depth == 0)
            return i + 1 == value.size();
    }
    return false;
}

// True if the keyword survives the same parser. A blank or an equals sign would end it, and the rest would be read as
// other options.
bool isCarriedKeyword(const QString &keyword)
{
    return std::none_of(keyword.begin(), keyword.end(),
                        [](QChar character) { return character.isSpace() || character == u'='; });
}

} // namespace

void addJobOption(ipp_t *request, const QString &keyword, const QString &value)
{
    QByteArray name = keyword.toUtf8();
    QByteArray text = value.toUtf8();
    // An attribute without a name would be read as another value of the previous one (RFC 8010, 3.1.5).
    if (name.isEmpty())
        return;
    const bool isTruth =
        text.compare("true", Qt::CaseInsensitive) == 0 || text.compare("false", Qt::CaseInsensitive) == 0;
    if (!isTruth && isUntyped(name)) {
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, name.constData(), nullptr, text.constData());
        return;
    }
    cups_option_t option = {name.data(), text.data()};
    cupsEncodeOptions2(request, 1, &option, IPP_TAG_JOB);
}

QString problemWithOptions(const JobOptions &options)
{
    for (const auto &[keyword, value] : options) {
        if (!isCarriedKeyword(keyword))
            return tr("The print server cannot carry an option of the name “%1”.").arg(keyword);
        if (!isCarried(value))
            return tr("The print server cannot carry the value %1 of the option %2; choose another one.")
                .arg(value, keyword);
    }
    return {};
}

} // namespace bv
