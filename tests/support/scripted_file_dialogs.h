#pragma once

#include "ui/controls/file_name_picker.h"

#include <gtest/gtest.h>

#include <QList>

#include <functional>

namespace tessaly {

/// Answers with the names that the test wrote beforehand; "" is a dialog that the user cancels.
class ScriptedFileDialogs {
public:
    ScriptedFileDialogs(std::initializer_list<QString> names = {})
        : m_names(names) {}
    ScriptedFileDialogs(const ScriptedFileDialogs&) = delete;
    ScriptedFileDialogs& operator=(const ScriptedFileDialogs&) = delete;
    ~ScriptedFileDialogs() { EXPECT_TRUE(m_names.isEmpty()) << "not every name was used"; }

    void add(const QString& name) { m_names << name; }

    FileDialog dialog() {
        return [this](const FileQuestion& question, QWidget*) { return answer(question); };
    }

    /// Every question, in order.
    QList<FileQuestion> asked;
    /// What the user does in the dialog before it closes.
    std::function<void()> meanwhile;

private:
    QString answer(const FileQuestion& question) {
        asked << question;
        if (meanwhile)
            meanwhile();
        if (!m_names.isEmpty())
            return m_names.takeFirst();
        ADD_FAILURE() << "unexpected file dialog: " << question.title.toStdString();
        return {};
    }

    QList<QString> m_names;
};

} // namespace tessaly
