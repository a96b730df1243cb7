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
#include <QStackedWidget>
#include <QTabBar>
#include <algorithm>
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
    bool isInSight;
};

// What was made of a text, so that it is known again. Its owner keeps it as a property.
struct Made
{
    QString written;  // the text with our mark
    QString original; // the text as its owner set it
    QChar letter;     // the one that it was given, as long as its owner lives; null: none
    QString named;    // the text when that was

    bool operator==(const Made &) const = default;
};

QByteArray propertyOf(int place)
{
    return "bvMnemonic" + QByteArray::number(place);
}

// A text as its owner set it, whatever we made of it.
QString originalOf(const Title &title, const Made &made)
{
    return made.written == title.text ? made.original : title.text;
}

// Without the mark. A doubled "&" stays doubled, since it stands for itself. A letter that stands in brackets only for
// its mark, "(&X)", goes with it.
QString withoutMark(const QString &text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'(' && i + 3 < text.size() && text[i + 1] == u'&' && text[i + 2] != u'&' &&
            text[i + 3] == u')') {
            if (plain.endsWith(u' '))
                plain.chop(1);
            i += 3;
            continue;
        }
        if (text[i] == u'&' && i + 1 < text.size()) {
            if (text[i + 1] == u'&')
                plain += u'&';
            ++i;
        }
        plain += text[i];
    }
    return plain;
}

// Whether one key types the letter. Chinese, Japanese and Korean need several; their texts get a Latin letter behind
// them.
bool isOneKey(QChar letter)
{
    switch (letter.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
        return false;
    default:
        return letter.isLetterOrNumber() && letter != u'ー';
    }
}

bool joinsNext(QChar letter)
{
    return letter.joiningType() == QChar::Joining_Dual || letter.joiningType() == QChar::Joining_Causing;
}

bool joinsPrevious(QChar letter)
{
    return joinsNext(letter) || letter.joiningType() == QChar::Joining_Right;
}

// Whether a mark at text[at] would tear the letters of an Arabic word apart: Qt draws what is underlined by itself, in
// another form, and wider than the label has room for. `before`: where the letter in front of it is; -1: there is none.
bool tearsApart(const QString &text, qsizetype before, qsizetype at)
{
    return (before >= 0 && joinsNext(text[before]) && joinsPrevious(text[at])) ||
           (at + 1 < text.size() && joinsNext(text[at]) && joinsPrevious(text[at + 1]));
}

// Where the mark of a text is; -1: it has none.
qsizetype markOf(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] != u'&')
            return i;
        ++i;
    }
    return -1;
}

// The letter that a text brings along; null when it has none, or when its mark would tear a word apart.
QChar ownLetter(const QString &text)
{
    const qsizetype mark = markOf(text);
    return mark < 0 || tearsApart(text, mark - 1, mark + 1) ? QChar() : text[mark + 1].toUpper();
}

QString withMark(const QString &plain, QChar letter)
{
    const auto isLetter = [&](qsizetype i) { return plain[i].toUpper() == letter && !tearsApart(plain, i - 1, i); };
    const auto beginsWord = [&](qsizetype i) { return i == 0 || !plain[i - 1].isLetterOrNumber(); };
    qsizetype at = -1;
    for (qsizetype i = 0; i < plain.size(); ++i)
        if (isLetter(i) && (at < 0 || (beginsWord(i) && !beginsWord(at))))
            at = i;
    if (at >= 0)
        return plain.left(at) + u'&' + plain.mid(at);
    // In front of what ends a label.
    const qsizetype end = plain.size() - (!plain.isEmpty() && QStringLiteral(":…?？").contains(plain.back()) ? 1 : 0);
    const bool isSpaced = end > 0 && isOneKey(plain[end - 1]);
    return plain.left(end) + QLatin1String(isSpaced ? " (&" : "(&") + letter + u')' + plain.mid(end);
}

// The letters of a text, the best ones first: beginnings of words, then all others.
QString lettersOf(const QString &plain)
{
    QString first;
    QString others;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (isOneKey(plain[i]) && !tearsApart(plain, i - 1, i))
            (i == 0 || !plain[i - 1].isLetterOrNumber() ? first : others) += plain[i].toUpper();
    }
    return first + others;
}

void collect(QWidget *window, std::vector<Title> *titles)
{
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->window() != window)
            continue;
        const bool isInSight = widget->isVisibleTo(window);
        const auto add = [&](int place, const QString &text, std::function<void(const QString &)> write, bool inSight) {
            if (!text.isEmpty())
                titles->push_back({widget, place, text, std::move(write), inSight});
        };
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            if (label->buddy())
                add(
                    0, label->text(), [label](const QString &text) { label->setText(text); },
                    isInSight && label->buddy()->isVisibleTo(window));
        } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            add(
                0, button->text(), [button](const QString &text) { button->setText(text); }, isInSight);
        } else if (auto *group = qobject_cast<QGroupBox *>(widget)) {
            if (group->isCheckable())
                add(
                    0, group->title(), [group](const QString &text) { group->setTitle(text); }, isInSight);
        } else if (auto *tabs = qobject_cast<QTabBar *>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                add(
                    tab, tabs->tabText(tab), [tabs, tab](const QString &text) { tabs->setTabText(tab, text); },
                    isInSight);
        }
    }
}

// False for widgets on different pages of a stack.
bool canMeet(const QWidget *one, const QWidget *other)
{
    for (const QWidget *parent = one; parent; parent = parent->parentWidget())
        if (parent == other || parent->isAncestorOf(other))
            return !qobject_cast<const QStackedWidget *>(parent);
    return true;
}

// Shares the letters out. Who has a letter keeps it, in sight or not. Then come letters that texts bring along, then
// the texts in sight that have none yet: where one finds none of its letters free, another new one takes another (a
// matching by augmenting paths), so that few texts get a letter that they do not have. The letter of a text that is out
// of sight and may come back is taken only where there is no other.
class LetterSharing
{
public:
    // What each title had before; null: nothing.
    LetterSharing(const std::vector<Title> &titles, const std::vector<QString> &originals, std::vector<QChar> before)
        : m_titles(titles), m_given(std::move(before)), m_letters(titles.size())
    {
        const auto each = [&](auto &&act) {
            for (size_t i = 0; i < titles.size(); ++i)
                if (m_given[i].isNull())
                    act(i);
        };
        each([&](size_t i) {
            if (const QChar own = ownLetter(originals[i]); !own.isNull() && !isHeld(own, i, true))
                m_given[i] = own;
        });
        yieldDoubles(originals);
        for (const bool sparesHidden : {true, false}) {
            std::vector<size_t> wanting;
            each([&](size_t i) {
                if (titles[i].isInSight)
                    wanting.push_back(i);
            });
            for (const size_t i : wanting) {
                m_letters[i].clear();
                for (const QChar letter : lettersOf(withoutMark(originals[i])))
                    if (!isHeld(letter, i, sparesHidden) && !m_letters[i].contains(letter))
                        m_letters[i] += letter;
            }
            m_holders.clear();
            for (const size_t i : wanting) {
                QSet<QChar> tried;
                find(i, &tried);
            }
            for (const size_t i : wanting)
                for (const QChar letter : QStringLiteral("1234567890QXZJKVWYBGHFMPUIOLNDRSCTAE"))
                    if (m_given[i].isNull() && !isHeld(letter, i, sparesHidden))
                        m_given[i] = letter;
        }
    }

    // In the order of the titles; null where none was left, or none is needed yet.
    const std::vector<QChar> &letters() const { return m_given; }

private:
    // Whether another title has the letter: one in sight, or, if these are to be spared, one that may come into sight.
    bool isHeld(QChar letter, size_t by, bool sparesHidden) const
    {
        for (size_t i = 0; i < m_titles.size(); ++i) {
            if (i == by || m_given[i] != letter)
                continue;
            if ((m_titles[i].isInSight && m_titles[by].isInSight) ||
                (sparesHidden && canMeet(m_titles[i].owner, m_titles[by].owner)))
                return true;
        }
        return false;
    }

    // Two that have come into sight together have the same letter where there was no other. One of them gets a new one:
    // not the one that brought its letter along.
    void yieldDoubles(const std::vector<QString> &originals)
    {
        for (const bool yieldsOwn : {false, true})
            for (size_t i = 0; i < m_titles.size(); ++i)
                if (m_titles[i].isInSight && !m_given[i].isNull() &&
                    (yieldsOwn || m_given[i] != ownLetter(originals[i])) && isHeld(m_given[i], i, false))
                    m_given[i] = QChar();
    }

    bool find(size_t i, QSet<QChar> *tried)
    {
        for (const QChar letter : m_letters[i]) {
            if (tried->contains(letter))
                continue;
            tried->insert(letter);
            const auto holder = m_holders.constFind(letter);
            if (holder != m_holders.constEnd() && !find(*holder, tried))
                continue;
            m_given[i] = letter;
            m_holders.insert(letter, i);
            return true;
        }
        return false;
    }

    const std::vector<Title> &m_titles;
    std::vector<QChar> m_given;
    std::vector<QString> m_letters; // those that a new title may have, the best ones first
    QHash<QChar, size_t> m_holders; // the new titles that have one of these
};

// The letter that the title has had; null when it has none, or when its text is another one that lacks the letter or
// brings its own.
QChar keptLetter(const Made &made, const QString &original)
{
    if (made.letter.isNull() || made.named == original)
        return made.letter;
    const QChar own = ownLetter(original);
    const bool fits = own.isNull() ? lettersOf(withoutMark(original)).contains(made.letter) : own == made.letter;
    return fits ? made.letter : QChar();
}

} // namespace

QChar mnemonicOf(const QString &text)
{
    const qsizetype mark = markOf(text);
    return mark < 0 ? QChar() : text[mark + 1].toUpper();
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
    const bool isAsLeft = std::equal(titles.begin(), titles.end(), m_seen.begin(), m_seen.end(),
                                     [](const Title &title, const Seen &seen) {
                                         return Seen{title.owner, title.place, title.text, title.isInSight} == seen;
                                     });
    if (isAsLeft)
        return;
    std::vector<Made> made;
    std::vector<QString> originals;
    std::vector<QChar> before;
    made.reserve(titles.size());
    originals.reserve(titles.size());
    before.reserve(titles.size());
    for (const Title &title : titles) {
        made.push_back(title.owner->property(propertyOf(title.place)).value<Made>());
        originals.push_back(originalOf(title, made.back()));
        before.push_back(keptLetter(made.back(), originals.back()));
    }

    const std::vector<QChar> given = LetterSharing(titles, originals, before).letters();
    m_seen.clear();
    for (size_t i = 0; i < titles.size(); ++i) {
        const Title &title = titles[i];
        Made now = made[i];
        now.letter = given[i];
        now.named = originals[i];
        QString shown = title.text;
        if (title.isInSight) {
            const QString plain = withoutMark(originals[i]);
            const bool isOwn = given[i] == ownLetter(originals[i]);
            shown = isOwn ? originals[i] : given[i].isNull() ? plain : withMark(plain, given[i]);
            if (shown != title.text) {
                now.written = shown;
                now.original = originals[i];
                title.write(shown);
            }
        }
        if (!(now == made[i]))
            title.owner->setProperty(propertyOf(title.place), QVariant::fromValue(now));
        m_seen.push_back({title.owner, title.place, shown, title.isInSight});
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
