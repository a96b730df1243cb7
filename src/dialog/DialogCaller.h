// SPDX-License-Identifier: GPL-2.0-or-later
// What another program asks of the dialog when it has the user print from there.
#pragma once

#include "platform/PrintValue.h"

#include <QString>

namespace bv {

// The documents belong to that program: the user cannot add or remove any. It may make them afterwards: then the sink
// takes no documents.
struct DialogCaller
{
    QString title;           // of the window; empty: "Print"
    QString acceptText;      // of the button that prints, without mnemonic; empty: "Print"
    PrintDictionary choices; // for the first queue, by PPD keyword; they go before what is remembered
    int copies = 1;          // shown first
    QString pageRange;       // shown first; empty: all pages
    QString note;            // a sentence for the user, shown when the first queue is there; may be empty
};

} // namespace bv
