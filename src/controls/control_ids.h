#pragma once

#include <optional>

#include "controls/field.h"

// The fixed IDs of every menu item, window part and control, so that tests and tools find them.

namespace varno {

enum MenuId : int {
    idNew = 2001,    // n
    idOpen,          // op
    idSave,          // spar
    idSaveAs,        // spars
    idPrint,         // sut
    idPrinterSetup,  // skrinst
    idExit,          // av
    idLineLoads,     // blin
    idRun,           // start
    idShowResult,    // res1
    idPrintResult,   // res2
    idDeleteResults, // del1
    idDeleteInputs,  // del2
    idDeleteBoth,    // del3
    idMoment,        // mom
    idImportant,     // vikt
    idEditFont,      // "Redigera" of the result viewer
    idFreeLineLoads, // the free line load editor: a toolbar button and the load picture's context menu
    /// The help command, in the window's own menu too: Windows keeps the lowest four bits of IDs there.
    idHelp = 0x0820,
    idLayout, // "Layout" of a line load editor
};

/// Parts of the main window.
enum MainPartId : int {
    idToolbar = 3001,
    idMdiClient,
    idInputForm, ///< the input form itself, inside the MDI client
    idLoadPicture,
    idSlabStrip,
    idStatusState, ///< the status line: saved or changed
    idStatusFolder,
    idStatusLength,
    idStatusResult,
    idStatusReason,         ///< over all of the line
    idFlag = 3100,          ///< + 0..6
    idSupportButton = 3200, ///< `stod`, + 0..15
    idFirstMdiChild = 3300,
};

/// Controls of the smaller windows; each window's own set.
enum DialogId : int {
    idOkButton = 1, ///< IDOK, so that Enter presses it
    idCancelButton = 2,
    idYesButton = 6,
    idNoButton = 7,
    idHideNotice = 101,
    idProductLabel,
    idHeading,
    idTextOne,
    idTextTwo,
    idPicture,
    idQuestion,
    idFileName = 201,
    idFileNameLabel,
    idDriveList,
    idDirectoryList,
    idFileList,
    idPathLabel,
    idNote,
    idFileTextBox = 301,
    idReturn, ///< "Återgå"
    idFindLabel,
    idFindWord,
    idFindPrevious,
    idFindNext,
    idFindNote,
    idResultAge, ///< which file is shown, and how old it is
    idInstalledFonts = 401,
    idStoredFont,
    idCurrentFont,
    idDelete = 501,
    idDeletionHelp,
    idConfirm,  ///< `bekr`
    idPosition, ///< the hidden label with the place of the file in its list
    idPlot = 601,
    idDiagramPicture,
    idDiagramReading,
    idDiagramAge,
    idLineLoadSpin = 701,
    idLineLoadField = 710, ///< + 10 * LineLoadBox + row
};

/// Controls of the main input form: a block of numbers for every field.
enum FormId : int {
    idFormField = 1000, ///< + 20 * Field + index
    idFormLabel = 2900, ///< labels and frames, which nothing refers to
};

constexpr int controlId(Control control) {
    return idFormField + 20 * static_cast<int>(control.field) + control.index;
}

/// The control of an ID of the input form.
constexpr std::optional<Control> controlOfId(int id) {
    constexpr int fields = static_cast<int>(Field::loadFrame) + 1;
    const int place = id - idFormField;
    if (place < 0 || place >= 20 * fields) return std::nullopt;
    return Control{static_cast<Field>(place / 20), place % 20};
}

} // namespace varno
