// SPDX-License-Identifier: GPL-2.0-or-later
// The test panel's text field. It accepts no digits, neither typed nor pasted. Like all classes of plug-ins, its class
// has a suffix.
#pragma once

#include <QLineEdit>

#define PaperField PaperField_0A1B2C3D_4E5F_6071_8293_A4B5C6D7E8F9

class PaperField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit PaperField(QWidget *parent = nullptr);
};
