// SPDX-License-Identifier: GPL-2.0-or-later
// Loading a plug-in through Qt and talking to its factory.
#include "queues/PanelLoader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace bv {

QString PanelLoader::defaultPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/bvco/bvco.so"));
}

Result<std::monostate> PanelLoader::load(const QString &path, const QString &language)
{
    using Loaded = Result<std::monostate>;
    const QString absolute = QFileInfo(path.isEmpty() ? defaultPath() : path).absoluteFilePath();
    if (!QFileInfo(absolute).isFile())
        return Loaded::failure(QStringLiteral("The plug-in %1 is not there.").arg(absolute));
    m_loader.setFileName(absolute);
    QObject *root = m_loader.instance();
    if (!root)
        return Loaded::failure(
            QStringLiteral("The plug-in %1 does not load: %2").arg(absolute, m_loader.errorString().simplified()));
    m_factory = qobject_cast<PrintPanelFactory *>(root);
    if (!m_factory)
        return Loaded::failure(QStringLiteral("The plug-in %1 has no print panels.").arg(absolute));
    if (!m_factory->initWithBundle({absolute, language})) {
        m_factory = nullptr;
        return Loaded::failure(QStringLiteral("The plug-in %1 does not start.").arg(absolute));
    }
    return std::monostate();
}

std::optional<Panels> PanelLoader::panels(const QString &type, PrintPanelCallback *callback)
{
    return m_factory ? m_factory->PDEPanelsForType(type, callback) : std::nullopt;
}

void PanelLoader::setPanelWait(PanelWait *wait)
{
    if (auto *waiting = m_factory ? qobject_cast<PrintPanelWaiting *>(m_loader.instance()) : nullptr)
        waiting->setPanelWait(wait);
}

void PanelLoader::setLogObserver(LogObserver *observer)
{
    if (auto *logging = m_factory ? qobject_cast<PrintPanelLogging *>(m_loader.instance()) : nullptr)
        logging->setLogObserver(observer);
}

std::unique_ptr<PrintPanel> PanelLoader::printerPanel(PrintPanelCallback *callback)
{
    std::optional<Panels> found = panels(QString::fromLatin1(kPrinterModulePanelType), callback);
    return found && !found->empty() ? std::move(found->front()) : nullptr;
}

} // namespace bv
