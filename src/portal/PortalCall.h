// SPDX-License-Identifier: GPL-2.0-or-later
// One call of the portal, from its arrival to its answer: a process with a dialog, or the desktop's own back end.
#pragma once

#include "portal/Tokens.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QProcess>
#include <QTimer>
#include <memory>

namespace bv {

// What a call brings, other than for whom it is.
struct PortalArguments
{
    QString handle;
    PortalClient client;
    DialogRequest request;
    QDBusUnixFileDescriptor document; // not valid: there is none
    uint token = 0;                   // that the program gives back; 0: none
};

class PortalCall : public QObject
{
    Q_OBJECT

public:
    // The tokens must outlive the call. `message` is answered once.
    PortalCall(QDBusConnection bus, const QDBusMessage &message, PortalArguments arguments, Tokens &tokens,
               QObject *parent);
    ~PortalCall() override;

    // Exports the request and goes to work. A handle that is in use is answered with a failure.
    void start();
    // Ends what the user sees, for the caller with this name on the bus.
    void closeFor(const QString &caller);
    void close();

signals:
    // The call is answered, and nothing of it runs any more.
    void ended();

private:
    void showDialog();
    void takeAnswer();
    void handOver();
    void forward(const QString &backend, const QList<QVariant> &arguments);
    void takeForwarded(const QDBusMessage &reply);
    void answer(DialogAnswer::Response response, const QVariantMap &results = {});
    void finish();

    QDBusConnection m_bus;
    QDBusMessage m_message;
    PortalArguments m_arguments;
    Tokens &m_tokens;
    QDBusServiceWatcher m_caller;
    QProcess m_dialog;
    QTimer m_patience; // of a dialog that was told to close
    QString m_backend; // that the call was forwarded to; empty: none
    QByteArray m_output;
    bool m_isExported = false;
    bool m_isAnswered = false;
};

// The request as the portal sees it.
class RequestAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
    explicit RequestAdaptor(PortalCall *call) : QDBusAbstractAdaptor(call), m_call(call) {}

public slots:
    void Close(const QDBusMessage &message) { m_call->closeFor(message.service()); }

private:
    PortalCall *m_call;
};

} // namespace bv
