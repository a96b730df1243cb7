// SPDX-License-Identifier: GPL-2.0-or-later
// Reads one list and writes it for each user.
#include "app/ShareProfiles.h"

#include "platform/RootPath.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfileOperations.h"
#include "profiles/ProfilePaths.h"
#include "queues/Complaint.h"

#include <memory>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr int kRefused = 1;
constexpr int kBadStart = 2;
constexpr int16_t kKeepPrevious = 2; // the swap that copies the current list over the previous one

bool isUser(const QString &login)
{
    return !login.isEmpty() && getpwnam(login.toUtf8().constData()) != nullptr;
}

QString loginOf(uid_t user)
{
    const passwd *entry = getpwuid(user);
    return QString::fromUtf8(entry ? entry->pw_name : "");
}

QString administrator()
{
    // sudo sets the variable; only root can give lists away, so nobody gains by setting it himself.
    const QString caller = getuid() == 0 ? qEnvironmentVariable("SUDO_USER") : QString();
    return isUser(caller) ? caller : loginOf(getuid());
}

bool hasList(const QString &login)
{
    struct stat status = {};
    return lstat(mapRootPath(profilePathsFor(login.toStdString()).current).c_str(), &status) == 0;
}

// The outcome for one user, in words. Sets *done when the user has the list now.
QString give(const ProfileLists &lists, const QString &user, const ShareRequest &request, bool *done)
{
    *done = false;
    if (!isUser(user))
        return QStringLiteral("there is no such user");
    const bool isReplaced = hasList(user);
    if (isReplaced && !request.replace)
        return QStringLiteral("has a list already, which was kept; --replace gives this one all the same");
    setProfileLogin(user.toStdString());
    if (isReplaced)
        BVPListSwapProfile(kKeepPrevious);
    *done = BVPListWriteProfile_All(&lists.rgb, &lists.sim, &lists.dst) == 0;
    setProfileLogin({});
    if (!*done)
        return getuid() == 0 ? QStringLiteral("the helper could not write the list; the log says why")
                             : QStringLiteral("refused: only root may give lists to others (use sudo)");
    return isReplaced ? QStringLiteral("has the list now; the one before was kept as the previous list")
                      : QStringLiteral("has the list now");
}

} // namespace

int shareProfiles(const ShareRequest &request)
{
    const QString from = request.from.isEmpty() ? administrator() : request.from;
    if (!helperAvailable()) {
        complain(QStringLiteral("The helper that writes lists is not installed (%1).").arg(QLatin1String(kHelperPath)));
        return kBadStart;
    }
    if (!isUser(from)) {
        complain(QStringLiteral("There is no user \"%1\" whose list could be given to others.").arg(from));
        return kBadStart;
    }
    const auto lists = std::make_unique<ProfileLists>();
    setProfileLogin(from.toStdString());
    const bool isRead = BVPListReadProfile_All(&lists->rgb, &lists->sim, &lists->dst) == 0;
    setProfileLogin({});
    if (!isRead) {
        complain(QStringLiteral(
                     "%1 has no list of profiles yet. It is made when %1 opens the dialog and the printer answers; "
                     "--from names another user.")
                     .arg(from));
        return kBadStart;
    }
    int status = 0;
    for (const QString &user : request.users) {
        bool done = user == from;
        const QString outcome = done ? QStringLiteral("it is this user's list") : give(*lists, user, request, &done);
        tell(QStringLiteral("%1: %2\n").arg(user, outcome));
        if (!done)
            status = kRefused;
    }
    return status;
}

} // namespace bv
