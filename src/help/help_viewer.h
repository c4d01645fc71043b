#pragma once

#include <string>
#include <string_view>

#include "base/help_system.h"
#include "base/message_boxes.h"

namespace varno {

/// The application's help file, as it is registered.
inline constexpr const char* registeredHelpFile = "c:\\varnow\\run\\varno.hlp";

/// Said when F1 finds neither form of the help.
inline constexpr const char* helpMissing = "Hjälpen hittas inte. Varno.HLP, eller mappen help med hjälpen i "
                                           "HTML, ska ligga i arbetsmappen eller bredvid "
                                           "programmet.";

/// Said, with the path behind it, when Windows has no program for the page.
inline constexpr const char* helpNotOpened =
    "Hjälpen kunde inte öppnas. Öppna den här filen i en webbläsare: ";

/// Shows the help: the .HLP file, or its HTML twin where there is no viewer for the file or no file. Both are looked
/// for where the help is registered, in the work folder and beside the program, in this order.
class HelpViewer {
  public:
    HelpViewer(HelpSystem& system, MessageBoxes& boxes) : system_(system), boxes_(boxes) {}

    /// `workFolder` may be empty: it is not known before varno.ini is read.
    void show(std::string_view topic, const std::string& workFolder);
    /// Closes the viewer; called at the end of the program.
    void close();

  private:
    /// The path of a help file in the first place that has it, empty when none has.
    std::string find(const std::string& file, const std::string& workFolder);

    HelpSystem& system_;
    MessageBoxes& boxes_;
    std::string shown_; ///< the .HLP file that the viewer has open
};

} // namespace varno
