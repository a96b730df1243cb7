// SPDX-License-Identifier: GPL-2.0-or-later
// Collects the texts in sight, shares the letters out, and writes the marks into the texts.
#include "widgets/Mnemonics.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QSet>
#include <QTabBar>
#include <functional>
#include <vector>

namespace bv {

namespace {

// A text that can carry a mark. `place` tells apart several of one widget.
struct Title
{
    QWidget *owner;
    int place;
    QString text;
    std::function<void(const QString &)> write;
};

// What was made of a text, so that it is known again.
constexpr char kWritten[] = "bvMnemonicText";    // the text with our mark
constexpr char kOriginal[] = "bvMnemonicSource"; // the text as its owner set it

QByteArray property(const char *name, int place)
{
    return QByteArray(name) + QByteArray::number(place);
}

// A text as its owner set it, whatever we made of it.
QString originalOf(const Title &title)
{
    const bool isOurs = title.owner->property(property(kWritten, title.place)).toString() == title.text;
    return isOurs ? title.owner->property(property(kOriginal, title.place)).toString() : title.text;
}

// Without the mark. A doubled "&" stays doubled, since it stands for itself.
QString withoutMark(const QString &text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) {
            if (text[i + 1] == u'&')
                plain += u'&';
            ++i;
        }
        plain += text[i];
    }
    return plain;
}

QString withMark(const QString &plain, QChar letter)
{
    const auto isLetter = [&](qsizetype i) { return plain[i].toUpper() == letter; };
    const auto beginsWord = [&](qsizetype i) { return i == 0 || !plain[i - 1].isLetterOrNumber(); };
    qsizetype at = -1;
    for (qsizetype i = 0; i < plain.size(); ++i)
        if (isLetter(i) && (at < 0 || (beginsWord(i) && !beginsWord(at))))
            at = i;
    if (at >= 0)
        return plain.left(at) + u'&' + plain.mid(at);
    // In front of what ends a label.
    const qsizetype end = plain.endsWith(u':') || plain.endsWith(u'…') ? plain.size() - 1 : plain.size();
    return plain.left(end) + QStringLiteral(" (&%1)").arg(letter) + plain.mid(end);
}

// The letters of a text, the best ones first: beginnings of words, then all others.
QString lettersOf(const QString &plain)
{
    QString first;
    QString others;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (plain[i].isLetterOrNumber())
            (i == 0 || !plain[i - 1].isLetterOrNumber() ? first : others) += plain[i].toUpper();
    }
    return first + others;
}

void collect(QWidget *window, std::vector<Title> *titles)
{
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->window() != window || !widget->isVisibleTo(window))
            continue;
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            const bool names = label->buddy() && label->buddy()->isVisibleTo(window) && !label->text().isEmpty();
            if (names)
                titles->push_back({label, 0, label->text(), [label](const QString &text) { label->setText(text); }});
        } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            if (!button->text().isEmpty())
                titles->push_back(
                    {button, 0, button->text(), [button](const QString &text) { button->setText(text); }});
        } else if (auto *group = qobject_cast<QGroupBox *>(widget)) {
            if (group->isCheckable())
                titles->push_back({group, 0, group->title(), [group](const QString &text) { group->setTitle(text); }});
        } else if (auto *tabs = qobject_cast<QTabBar *>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                titles->push_back(
                    {tabs, tab, tabs->tabText(tab), [tabs, tab](const QString &text) { tabs->setTabText(tab, text); }});
        }
    }
}

// Shares the letters out. Those that texts bring along come first, then those that were given before, so that few ever
// change. A text that finds none of its letters free makes another one change, where that has a choice (a matching by
// augmenting paths), so that few texts get a letter that they do not have.
class LetterSharing
{
public:
    LetterSharing(const std::vector<Title> &titles, const std::vector<QString> &originals)
        : m_given(titles.size()), m_isOwn(titles.size())
    {
        m_letters.reserve(titles.size());
        for (size_t i = 0; i < titles.size(); ++i) {
            m_letters.push_back(lettersOf(withoutMark(originals[i])));
            m_isOwn[i] = give(i, mnemonicOf(originals[i]));
        }
        for (size_t i = 0; i < titles.size(); ++i)
            give(i, mnemonicOf(titles[i].text));
        for (size_t i = 0; i < titles.size(); ++i)
            if (QSet<QChar> tried; m_given[i].isNull() || !m_letters[i].contains(m_given[i]))
                find(i, &tried);
        for (size_t i = 0; i < titles.size(); ++i)
            for (const QChar letter : QStringLiteral("1234567890QXZJKVWYBGHFMPUIOLNDRSCTAE"))
                give(i, letter);
    }

    // In the order of the titles; null where none was left.
    const std::vector<QChar> &letters() const { return m_given; }

private:
    bool give(size_t i, QChar letter)
    {
        if (!m_given[i].isNull() || letter.isNull() || m_holders.contains(letter))
            return false;
        m_given[i] = letter;
        m_holders.insert(letter, i);
        return true;
    }

    bool find(size_t i, QSet<QChar> *tried)
    {
        for (const QChar letter : m_letters[i]) {
            if (tried->contains(letter))
                continue;
            tried->insert(letter);
            const auto holder = m_holders.constFind(letter);
            if (holder != m_holders.constEnd() && (m_isOwn[*holder] || !find(*holder, tried)))
                continue;
            if (!m_given[i].isNull() && m_holders.value(m_given[i]) == i)
                m_holders.remove(m_given[i]);
            m_given[i] = letter;
            m_holders.insert(letter, i);
            return true;
        }
        return false;
    }

    std::vector<QString> m_letters; // of each text, the best ones first
    std::vector<QChar> m_given;
    std::vector<bool> m_isOwn; // the text brought its letter along
    QHash<QChar, size_t> m_holders;
};

void write(const Title &title, const QString &original, const QString &marked)
{
    if (marked == title.text)
        return;
    title.owner->setProperty(property(kWritten, title.place), marked);
    title.owner->setProperty(property(kOriginal, title.place), original);
    title.write(marked);
}

} // namespace

QChar mnemonicOf(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] != u'&')
            return text[i + 1].toUpper();
        ++i;
    }
    return {};
}

QString withoutMnemonic(const QString &text)
{
    return withoutMark(text).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

Mnemonics::Mnemonics(QWidget *window) : QObject(window), m_window(window)
{
    qApp->installEventFilter(this);
}

void Mnemonics::assign()
{
    m_pending = false;
    std::vector<Title> titles;
    collect(m_window, &titles);
    std::vector<QString> originals;
    originals.reserve(titles.size());
    for (const Title &title : titles)
        originals.push_back(originalOf(title));

    const std::vector<QChar> given = LetterSharing(titles, originals).letters();
    for (size_t i = 0; i < titles.size(); ++i) {
        const QString plain = withoutMark(originals[i]);
        const bool isOwn = given[i] == mnemonicOf(originals[i]);
        write(titles[i], originals[i], isOwn ? originals[i] : given[i].isNull() ? plain : withMark(plain, given[i]));
    }
}

bool Mnemonics::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::LayoutRequest: // a text that changes asks for another layout
        break;
    default:
        return false;
    }
    if (!object->isWidgetType())
        return false;
    auto *widget = static_cast<QWidget *>(object);
    // A dialog over this window is a window with letters of its own.
    const bool isOver = event->type() == QEvent::Show && qobject_cast<QDialog *>(widget) && widget->parentWidget() &&
                        widget->parentWidget()->window() == m_window;
    if (isOver && !widget->findChild<Mnemonics *>(QString(), Qt::FindDirectChildrenOnly))
        (new Mnemonics(widget))->assign();
    if (m_pending || widget->window() != m_window)
        return false;
    m_pending = true;
    QMetaObject::invokeMethod(
        this, [this] { assign(); }, Qt::QueuedConnection);
    return false;
}

} // namespace bv
