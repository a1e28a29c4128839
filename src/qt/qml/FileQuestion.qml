// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Dialogs
import Lumora

// The desktop's dialog about a file.
Item {
    id: root

    required property QtFileChooser chooser

    FileDialog {
        id: dialog
        title: root.chooser.title
        fileMode: root.chooser.saving ? FileDialog.SaveFile : FileDialog.OpenFile
        nameFilters: [root.chooser.nameFilter]
        defaultSuffix: root.chooser.suffix
        currentFolder: root.chooser.folder
        acceptLabel: root.chooser.saving ? qsTrId("file.save") : qsTrId("action.open")
        rejectLabel: qsTrId("export.cancel")
        // Asked in the program's own words where it matters.
        options: FileDialog.DontConfirmOverwrite
        onAccepted: root.chooser.accept(selectedFile)
        onRejected: root.chooser.dismiss()
    }
    Component.onCompleted: {
        if (root.chooser.saving)
            dialog.selectedFile = root.chooser.suggestedFile;
        dialog.open();
    }
}
