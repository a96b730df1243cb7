// SPDX-License-Identifier: GPL-2.0-or-later
// Takes calls from the bus and counts them.
#include "portal/PrintBackend.h"

#include "platform/Log.h"
#include "portal/BackendNames.h"

#include <QCoreApplication>
#include <algorithm>

namespace bv {

namespace {

constexpr qsizetype kLongestText = 1000;

// Handles lie below /org/freedesktop/portal/desktop/request/CONNECTION/.
PortalClient clientOf(const QString &app, const QDBusObjectPath &handle)
{
    return {app, handle.path().section(u'/', -2, -2)};
}

PortalArguments argumentsOf(const QDBusObjectPath &handle, const QString &app, const QString &parent,
                            const QString &title, const QVariantMap &options)
{
    PortalArguments arguments;
    arguments.handle = handle.path();
    arguments.client = clientOf(app, handle);
    arguments.request.parent = parent.left(kLongestText);
    arguments.request.title = title.left(kLongestText);
    const QVariant modal = options.value(QStringLiteral("modal"));
    arguments.request.isModal = modal.typeId() != QMetaType::Bool || modal.toBool();
    const QVariant label = options.value(QStringLiteral("accept_label"));
    if (label.typeId() == QMetaType::QString)
        arguments.request.acceptLabel = label.toString().left(kLongestText);
    return arguments;
}

} // namespace

PrintBackend::PrintBackend(QDBusConnection bus, std::chrono::milliseconds idle, QObject *parent)
    : QObject(parent), m_bus(std::move(bus))
{
    new PrintAdaptor(this);
    m_idle.setInterval(idle);
    connect(&m_idle, &QTimer::timeout, this, &PrintBackend::quitIfIdle);
}

PrintBackend::~PrintBackend() = default;

bool PrintBackend::start()
{
    m_idle.start();
    // Without the bus there is nobody to serve.
    m_bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), qApp, SLOT(quit()));
    return m_bus.registerObject(QLatin1String(kBackendPath), this, QDBusConnection::ExportAdaptors) &&
           m_bus.registerService(QLatin1String(kBackendName));
}

void PrintBackend::take(const QDBusMessage &message, PortalArguments arguments)
{
    message.setDelayedReply(true);
    const bool lacksDocument = arguments.request.hasDocument && !arguments.document.isValid();
    if (m_calls.size() >= kMostCalls || lacksDocument) {
        diagnosticLine(lacksDocument ? "portal: a call brings no document" : "portal: too many calls at a time");
        m_bus.send(
            message.createReply({QVariant::fromValue(uint(DialogAnswer::Response::Failed)), QVariant(QVariantMap())}));
        return;
    }
    m_calls.push_back(std::make_unique<PortalCall>(m_bus, message, std::move(arguments), m_tokens, nullptr));
    PortalCall *call = m_calls.back().get();
    connect(call, &PortalCall::ended, this, [this, call] { end(call); });
    call->start();
}

void PrintBackend::end(const PortalCall *call)
{
    const auto found =
        std::find_if(m_calls.begin(), m_calls.end(), [call](const auto &one) { return one.get() == call; });
    if (found == m_calls.end())
        return;
    // The call is still on the stack.
    found->release()->deleteLater();
    m_calls.erase(found);
    m_idle.start();
}

void PrintBackend::quitIfIdle()
{
    if (!m_calls.empty() || !m_tokens.isEmpty())
        return;
    // A call that comes from now on starts the service anew. One that is on its way is still carried out.
    m_bus.unregisterService(QLatin1String(kBackendName));
    constexpr int kLastCallMilliseconds = 200;
    QTimer::singleShot(kLastCallMilliseconds, this, [this] {
        if (m_calls.empty() && m_tokens.isEmpty())
            QCoreApplication::quit();
        else if (!m_bus.registerService(QLatin1String(kBackendName)))
            diagnosticLine("portal: another service took over");
    });
}

uint PrintAdaptor::PreparePrint(const QDBusObjectPath &handle, const QString &app, const QString &parent,
                                const QString &title, const QVariantMap &settings, const QVariantMap &pageSetup,
                                const QVariantMap &options, const QDBusMessage &message, QVariantMap &)
{
    PortalArguments arguments = argumentsOf(handle, app, parent, title, options);
    arguments.request.settings = plainEntries(settings, false);
    arguments.request.pageSetup = plainEntries(pageSetup, true);
    m_backend->take(message, std::move(arguments));
    return 0;
}

uint PrintAdaptor::Print(const QDBusObjectPath &handle, const QString &app, const QString &parent, const QString &title,
                         const QDBusUnixFileDescriptor &document, const QVariantMap &options,
                         const QDBusMessage &message, QVariantMap &)
{
    PortalArguments arguments = argumentsOf(handle, app, parent, title, options);
    arguments.request.hasDocument = true;
    arguments.document = document;
    const QVariant token = options.value(QStringLiteral("token"));
    if (token.typeId() == QMetaType::UInt)
        arguments.token = token.toUInt();
    m_backend->take(message, std::move(arguments));
    return 0;
}

} // namespace bv
