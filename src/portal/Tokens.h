// SPDX-License-Identifier: GPL-2.0-or-later
// The tokens that stand for what users have agreed on, until the program prints.
#pragma once

#include "portal/DialogRequest.h"

#include <chrono>
#include <vector>

namespace bv {

// Whoever asked: the program's name as the portal gives it (empty outside a sandbox), and its connection to the bus.
struct PortalClient
{
    QString app;
    QString connection;

    bool operator==(const PortalClient &) const = default;
};

// What a token stands for: a job of ours, or a token of another back end.
struct Agreement
{
    AgreedJob job;
    QString backend; // the other back end's name on the bus; empty: ours
};

// A token is a random number that works once, for the client that got it, and for an hour.
class Tokens
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::minutes kLifetime{60};
    // A client's oldest token goes when it has so many.
    static constexpr size_t kMostOfClient = 16;

    // A new token, which is never 0.
    uint add(const PortalClient &client, Agreement agreement, Clock::time_point now = Clock::now());
    // A token that another back end made.
    void addGiven(uint token, const PortalClient &client, Agreement agreement, Clock::time_point now = Clock::now());
    // What the token stands for; it is used up then. Nothing when it is unknown, used, too old or another client's.
    std::optional<Agreement> take(uint token, const PortalClient &client, Clock::time_point now = Clock::now());
    bool isEmpty(Clock::time_point now = Clock::now());

private:
    struct Entry
    {
        uint token;
        PortalClient client;
        Agreement agreement;
        Clock::time_point end;
    };

    void dropOld(Clock::time_point now);

    std::vector<Entry> m_entries; // the oldest first
};

} // namespace bv
