#include "jxlineedit.h"

#include <QtCore/QPointer>

JxLineEdit::JxLineEdit(QWidget* parent) : QLineEdit(parent) {}

JxLineEdit::~JxLineEdit() = default;

void JxLineEdit::focusOutEvent(QFocusEvent* event)
{
    // The base emits editingFinished(), and a slot of that may delete the edit.
    const QPointer<JxLineEdit> guard(this);
    QLineEdit::focusOutEvent(event);
    if (guard)
        Q_EMIT focusLost();
}
