// SPDX-License-Identifier: GPL-2.0-or-later
// MainView: the panel's container view, the root of the interface file.
#pragma once

#include "platform/ClassNames.h"

#include <QWidget>

class MainView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};
