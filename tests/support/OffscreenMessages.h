#pragma once

#include <QString>
#include <QtGlobal>

/// Drops what the platform without a display says of its own lacks at every window; all other messages stay.
inline void DropOffscreenMessages()
{
    static QtMessageHandler shown = nullptr;
    shown = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (!text.startsWith(QLatin1String("This plugin does not support ")))
            shown(type, context, text);
    });
}
