#pragma once

#include <checklist/shapedriver.h>
#include <checklist/subject.h>

#include <QtCore/QFileSystemWatcher>
#include <QtWidgets/QWidget>

#include <memory>

class QFormLayout;
class QLabel;
class QPlainTextEdit;

namespace shapetool {

class PreviewView;

/// A shape as its author works on it: the view with the ranges of its points, settings, undo steps and saved state.
/// It is read again whenever its file is saved; a file with an error leaves the last good shape.
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewWindow(const QString &path);
    ~PreviewWindow() override;

    /// Reads the file again.
    void reload();
    /// Null before a good shape has been read.
    checklist::ShapeDriver *shape() const { return m_shape.get(); }
    QString messages() const;

private:
    void layOut();
    void watch();
    void showShape(std::unique_ptr<checklist::Subjects> subjects);
    void showSettings();
    void addControl(const QJsonObject &control);
    void showState();

    QString m_path;
    QFileSystemWatcher m_watcher;
    std::unique_ptr<checklist::Subjects> m_subjects;
    std::unique_ptr<checklist::ShapeDriver> m_shape;
    PreviewView *m_view;
    QFormLayout *m_settings;
    QPlainTextEdit *m_state;
    QLabel *m_messages;
};

} // namespace shapetool
