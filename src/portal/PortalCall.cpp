// SPDX-License-Identifier: GPL-2.0-or-later
// The ways that a call can take.
#include "portal/PortalCall.h"

#include "platform/Log.h"
#include "portal/BackendNames.h"
#include "portal/DesktopBackend.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace bv {

namespace {

using Response = DialogAnswer::Response;

constexpr int kClosingMilliseconds = 5000;
constexpr qsizetype kMostOutput = 16LL * 1024 * 1024; // bytes of a dialog's answer

// Errors that say that a back end is not there, rather than that it failed.
bool isAbsence(const QString &error)
{
    static const QStringList kErrors = {QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown"),
                                        QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner"),
                                        QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod"),
                                        QStringLiteral("org.freedesktop.DBus.Error.UnknownObject"),
                                        QStringLiteral("org.freedesktop.DBus.Error.UnknownInterface")};
    return kErrors.contains(error) || error.startsWith(u"org.freedesktop.DBus.Error.Spawn.");
}

// Runs in the new process before the program is started, so it makes system calls only.
void placeDocument(int descriptor)
{
    constexpr int kOutOfTheWay = 16;
    const int copy = fcntl(descriptor, F_DUPFD_CLOEXEC, kOutOfTheWay);
    if (copy >= 0)
        dup2(copy, DialogRequest::kDocumentDescriptor);
}

QVariantMap mapOf(const QVariant &value)
{
    return value.canConvert<QDBusArgument>() ? qdbus_cast<QVariantMap>(value) : value.toMap();
}

} // namespace

PortalCall::PortalCall(QDBusConnection bus, const QDBusMessage &message, PortalArguments arguments, Tokens &tokens,
                       QObject *parent)
    : QObject(parent), m_bus(std::move(bus)), m_message(message), m_arguments(std::move(arguments)), m_tokens(tokens),
      m_caller(m_message.service(), m_bus, QDBusServiceWatcher::WatchForUnregistration)
{
    new RequestAdaptor(this);
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, &m_dialog, &QProcess::kill);
    connect(&m_caller, &QDBusServiceWatcher::serviceUnregistered, this, &PortalCall::close);
    m_dialog.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_dialog, &QProcess::readyReadStandardOutput, this, [this] {
        m_output += m_dialog.readAllStandardOutput();
        if (m_output.size() > kMostOutput)
            m_dialog.kill();
    });
    connect(&m_dialog, &QProcess::finished, this, &PortalCall::takeAnswer);
    connect(&m_dialog, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            takeAnswer();
    });
}

PortalCall::~PortalCall()
{
    m_dialog.disconnect(this);
    // The dialog ends at the end of its input.
    m_dialog.closeWriteChannel();
    if (m_dialog.state() != QProcess::NotRunning && !m_dialog.waitForFinished(kClosingMilliseconds))
        m_dialog.kill();
}

void PortalCall::start()
{
    m_isExported = m_bus.registerObject(m_arguments.handle, this, QDBusConnection::ExportAdaptors);
    if (!m_isExported) {
        diagnosticLine("portal: the handle of a request is in use already");
        answer(Response::Failed);
        return;
    }
    const std::optional<Agreement> agreement =
        m_arguments.token ? m_tokens.take(m_arguments.token, m_arguments.client) : std::nullopt;
    if (m_arguments.token && !agreement)
        diagnosticLine("portal: a token is unknown, used or another program's; the user is asked");
    if (agreement && !agreement->backend.isEmpty()) {
        forward(agreement->backend, m_message.arguments());
        return;
    }
    if (agreement)
        m_arguments.request.job = agreement->job;
    showDialog();
}

void PortalCall::showDialog()
{
    m_output.clear();
    m_dialog.setProgram(QCoreApplication::applicationFilePath());
    m_dialog.setArguments({QStringLiteral("--dialog")});
    if (m_arguments.document.isValid())
        m_dialog.setChildProcessModifier(
            [descriptor = m_arguments.document.fileDescriptor()] { placeDocument(descriptor); });
    m_dialog.start();
    m_dialog.write(m_arguments.request.toLine());
}

void PortalCall::takeAnswer()
{
    m_patience.stop();
    m_output += m_dialog.readAllStandardOutput();
    const std::optional<DialogAnswer> got = DialogAnswer::fromLine(m_output);
    if (m_isAnswered) {
        finish();
        return;
    }
    if (!got)
        diagnosticLine("portal: the dialog ended without an answer");
    if (got && got->isHandedOver) {
        handOver();
        return;
    }
    if (!got || got->response != Response::Done || m_arguments.request.hasDocument) {
        answer(got ? got->response : Response::Failed);
        return;
    }
    const uint token = m_tokens.add(m_arguments.client, {got->job, {}});
    answer(Response::Done, {{QStringLiteral("settings"), got->settings},
                            {QStringLiteral("page-setup"), got->pageSetup},
                            {QStringLiteral("token"), token}});
}

void PortalCall::handOver()
{
    const QString backend = desktopBackend(portalFolder(), qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
    if (backend.isEmpty()) {
        m_arguments.request.mayHandOver = false;
        showDialog();
        return;
    }
    forward(backend, m_message.arguments());
}

void PortalCall::forward(const QString &backend, const QList<QVariant> &arguments)
{
    m_backend = backend;
    QDBusMessage call = QDBusMessage::createMethodCall(backend, QLatin1String(kBackendPath),
                                                       QLatin1String(kPrintInterface), m_message.member());
    call.setArguments(arguments);
    // People may take their time.
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, std::numeric_limits<int>::max()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        takeForwarded(finished->reply());
    });
}

void PortalCall::takeForwarded(const QDBusMessage &reply)
{
    if (m_isAnswered) {
        finish();
        return;
    }
    if (reply.type() == QDBusMessage::ErrorMessage && isAbsence(reply.errorName())) {
        diagnosticLine("portal: the desktop's own back end does not answer: " + reply.errorMessage().toStdString());
        m_backend.clear();
        m_arguments.request.mayHandOver = false;
        showDialog();
        return;
    }
    const QList<QVariant> values = reply.arguments();
    if (reply.type() != QDBusMessage::ReplyMessage || values.size() != 2) {
        diagnosticLine("portal: the desktop's own back end failed: " + reply.errorMessage().toStdString());
        answer(Response::Failed);
        return;
    }
    const QVariantMap results = mapOf(values[1]);
    if (const uint token = results.value(QStringLiteral("token")).toUInt(); token != 0)
        m_tokens.addGiven(token, m_arguments.client, {{}, m_backend});
    m_isAnswered = true;
    m_bus.send(m_message.createReply(values));
    finish();
}

void PortalCall::closeFor(const QString &caller)
{
    if (caller == m_message.service())
        close();
    else
        diagnosticLine("portal: somebody else wanted to close a request");
}

void PortalCall::close()
{
    if (m_isAnswered)
        return;
    m_isAnswered = true;
    m_bus.send(m_message.createReply({QVariant::fromValue(uint(Response::Failed)), QVariant(QVariantMap())}));
    if (m_dialog.state() != QProcess::NotRunning) {
        m_dialog.closeWriteChannel();
        // A job that the user has agreed on is sent all the same.
        if (!m_arguments.request.job)
            m_patience.start(kClosingMilliseconds);
        return;
    }
    if (!m_backend.isEmpty())
        m_bus.asyncCall(QDBusMessage::createMethodCall(m_backend, m_arguments.handle, QLatin1String(kRequestInterface),
                                                       QStringLiteral("Close")));
    finish();
}

void PortalCall::answer(DialogAnswer::Response response, const QVariantMap &results)
{
    m_isAnswered = true;
    m_bus.send(m_message.createReply({QVariant::fromValue(uint(response)), QVariant(results)}));
    finish();
}

void PortalCall::finish()
{
    if (std::exchange(m_isExported, false))
        m_bus.unregisterObject(m_arguments.handle);
    emit ended();
}

} // namespace bv
