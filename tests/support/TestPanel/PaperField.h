// The small panel's text field: no digits, neither typed nor pasted. Its class bears a suffix as plug-ins' do.
#pragma once

#include <QLineEdit>

#define PaperField PaperField_0A1B2C3D_4E5F_6071_8293_A4B5C6D7E8F9

class PaperField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit PaperField(QWidget *parent = nullptr);
};
