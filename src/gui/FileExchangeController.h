#pragma once

#include "gui/FileDialog.h"
#include "shell/Alert.h"
#include "shell/AlertPresenter.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <optional>
#include <string>

namespace tarnic {

class EditorController;

// The hotkey file's way in and out of the editor: "Export CustomKeys…" builds the game's file
// from the working list and the template and writes it where the player says; "Import
// CustomKeys…" reads one back into the list. Both ask through a file dialog and report through
// alerts.
class FileExchangeController : public QObject {
    Q_OBJECT
public:
    // `editor` holds the working list; the alerts say what an export or an import could not do,
    // or what an import did. Both must outlive the controller.
    FileExchangeController(EditorController& editor, AlertPresenter& alerts,
                           QObject* parent = nullptr);
    ~FileExchangeController() override;

    // The window the dialogs belong to. Call once, before the first action.
    void setWindow(QWidget* window) { window_ = window; }

    // Reads the whole ":/defaultkeys" template; an export without it writes only the blocks.
    void viewDidLoad();

    // The template's text, empty until the view loads.
    const std::string& def_keys_bundle() const { return def_keys_bundle_; }
    // The text the last export built.
    const std::string& result() const { return result_; }
    // The file dialogs of the export and the import; tests answer them through here.
    FileDialog& fileDialog() { return fileDialog_; }

    // Actions.
    void saveCKeys();
    // Reads a CustomKeys.txt the player chooses into the working list, like a key set by hand:
    // in memory only. Says what it did in a message.
    void importCKeys();

signals:
    // The save dialog of an export was answered and, if accepted, the file written or not.
    void exportFinished();
    // The open dialog of an import was answered and, if accepted, its message dismissed.
    void importFinished();

private:
    void writeResult(const std::optional<QString>& path);
    void readCustomKeys(const std::optional<QString>& path);
    // Imports the file and tells what happened.
    Alert importFrom(const QString& path);

    EditorController& editor_;
    AlertPresenter& alerts_;
    QPointer<QWidget> window_;
    std::string def_keys_bundle_;
    std::string result_;
    FileDialog fileDialog_;
};

} // namespace tarnic
