// The profile management window as a form: its controls, their texts and names, and what Return and Escape press.
#pragma once

#include "platform/ClassNames.h"

#include "ui_ProfileManagement.h"

#include <QDialog>

namespace bv {

class ProfileTableModel;

class ManagementWindow : public QDialog
{
    Q_OBJECT

public:
    explicit ManagementWindow(QWidget *parent = nullptr);

    // The form's controls under their outlets' names, and the model of its table.
    Ui::ProfileManagement controls;
    ProfileTableModel *model = nullptr;

    // Return presses the edit area's OK or the window's, unless another button has the focus.
    void setReturnConfirmsEntry(bool entry);
    // Says why Delete is not to be had; empty: nothing.
    void explainDelete(const QString &reason);

signals:
    // Escape was pressed; the window stays open unless someone closes it.
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void putTexts();
    void nameControls();
};

} // namespace bv
