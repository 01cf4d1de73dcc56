#pragma once

#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

#include <functional>

class QVBoxLayout;

namespace board {

class ValueEditor;

/// Contents of one row of a form.
struct FormRow
{
    QString structure; ///< rows of the same structure can be shown by the same editor
    QString caption;
    std::function<ValueEditor *()> makeEditor;
    QVariant value;
    bool isMixed = false; ///< the objects have different values
    bool isEnabled = true;
    QString note; ///< what is wrong with the value; empty for nothing
};

/// Captions and editors, one below the other. Editors stay while their rows keep their structure, so that nobody is
/// interrupted by what changes elsewhere.
class ObjectForm : public QWidget
{
    Q_OBJECT

public:
    explicit ObjectForm(QWidget *parent = nullptr);

    /// Captions take the room of their text alone, as in a bar.
    void setCompact(bool compact) { m_isCompact = compact; }

    void showRows(const QVector<FormRow> &rows);
    /// Makes all editors anew the next time.
    void forgetEditors() { m_structure.clear(); }
    QVector<ValueEditor *> editors() const { return m_editors; }

Q_SIGNALS:
    /// As the row's editor says (ValueEditor).
    void previewed(int row, const QVariant &value);
    void abandoned();
    void picked(int row, const QVariant &value);

private:
    void rebuild(const QVector<FormRow> &rows);
    void addRow(const FormRow &row);
    QWidget *makeRow(const QString &caption, ValueEditor *editor) const;

    QVBoxLayout *m_column;
    QWidget *m_content = nullptr;
    QVector<ValueEditor *> m_editors;
    QStringList m_structure;
    bool m_isCompact = false;
};

} // namespace board
