// SPDX-License-Identifier: GPL-2.0-or-later
// The print interface of the desktop portal's back ends, and the service that ends when nobody needs it.
#pragma once

#include "portal/PortalCall.h"

#include <QDBusObjectPath>

namespace bv {

class PrintBackend : public QObject
{
    Q_OBJECT

public:
    // More calls at a time are refused.
    static constexpr size_t kMostCalls = 32;

    PrintBackend(QDBusConnection bus, std::chrono::milliseconds idle, QObject *parent = nullptr);
    ~PrintBackend() override;

    // Takes the back end's name on the bus. False when another process has it.
    bool start();
    void take(const QDBusMessage &message, PortalArguments arguments);

private:
    void end(const PortalCall *call);
    void quitIfIdle();

    QDBusConnection m_bus;
    Tokens m_tokens;
    std::vector<std::unique_ptr<PortalCall>> m_calls;
    QTimer m_idle;
};

class PrintAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public:
    explicit PrintAdaptor(PrintBackend *backend) : QDBusAbstractAdaptor(backend), m_backend(backend) {}

public slots:
    uint PreparePrint(const QDBusObjectPath &handle, const QString &app, const QString &parent, const QString &title,
                      const QVariantMap &settings, const QVariantMap &pageSetup, const QVariantMap &options,
                      const QDBusMessage &message, QVariantMap &results);
    uint Print(const QDBusObjectPath &handle, const QString &app, const QString &parent, const QString &title,
               const QDBusUnixFileDescriptor &document, const QVariantMap &options, const QDBusMessage &message,
               QVariantMap &results);

private:
    PrintBackend *m_backend;
};

} // namespace bv
