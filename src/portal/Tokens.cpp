// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps tokens in the order in which they were made.
#include "portal/Tokens.h"

#include <QRandomGenerator>
#include <algorithm>

namespace bv {

uint Tokens::add(const PortalClient &client, Agreement agreement, Clock::time_point now)
{
    uint token = 0;
    const auto isTaken = [&] {
        return token == 0 || std::any_of(m_entries.begin(), m_entries.end(),
                                         [&](const Entry &entry) { return entry.token == token; });
    };
    while (isTaken())
        token = QRandomGenerator::system()->generate();
    addGiven(token, client, std::move(agreement), now);
    return token;
}

void Tokens::addGiven(uint token, const PortalClient &client, Agreement agreement, Clock::time_point now)
{
    dropOld(now);
    const auto isClients = [&client](const Entry &entry) { return entry.client == client; };
    if (std::count_if(m_entries.begin(), m_entries.end(), isClients) >= ptrdiff_t(kMostOfClient))
        m_entries.erase(std::find_if(m_entries.begin(), m_entries.end(), isClients));
    m_entries.push_back({token, client, std::move(agreement), now + kLifetime});
}

std::optional<Agreement> Tokens::take(uint token, const PortalClient &client, Clock::time_point now)
{
    dropOld(now);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry &entry) { return entry.token == token && entry.client == client; });
    if (found == m_entries.end())
        return std::nullopt;
    std::optional<Agreement> agreement(std::move(found->agreement));
    m_entries.erase(found);
    return agreement;
}

bool Tokens::isEmpty(Clock::time_point now)
{
    dropOld(now);
    return m_entries.empty();
}

void Tokens::dropOld(Clock::time_point now)
{
    std::erase_if(m_entries, [now](const Entry &entry) { return entry.end <= now; });
}

} // namespace bv
