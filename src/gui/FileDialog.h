#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace tarnic {

// The file dialogs of the export and the import. They return at once and report the player's
// answer later, like every dialog of the window. Tests queue the answer instead of showing a
// dialog.
class FileDialog {
public:
    using Done = std::function<void(std::optional<QString> path)>;

    // Answers the next dialog without showing it: a path accepts it, std::nullopt cancels it.
    // The answer still arrives later, from the event loop, as a person's would.
    void setNextAnswer(std::optional<QString> path);

    // Shows a save dialog for a text file proposing `proposedName` (completed with ".txt").
    // `done` runs once with the chosen file, or with nothing when the dialog is cancelled, as
    // long as `context` lives.
    void saveTextFile(QWidget* parent, const QString& proposedName, QObject* context, Done done);

    // Shows an open dialog for an existing text file. `done` runs as for saveTextFile.
    void openTextFile(QWidget* parent, QObject* context, Done done);

private:
    // Hands the queued answer to `done` from the event loop; false when none is queued.
    bool answerQueued(QObject* context, Done& done);
    bool answerQueued_ = false;
    std::optional<QString> nextAnswer_;
};

} // namespace tarnic
