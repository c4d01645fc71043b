#pragma once

namespace varno {

enum class ControlKind {
    label,
    paragraph,    ///< a text of several lines
    symbolLabel,  ///< a letter and a subscript, written "f_yk"
    edit,         ///< one line, text
    numberEdit,   ///< one line, a number at the right
    readOnlyEdit, ///< a path that can be selected and copied
    memo,         ///< many lines, read only, both scroll bars
    button,
    defaultButton,
    group,      ///< a frame with a caption
    radio,      ///< a further option of a group
    firstRadio, ///< the first option: starts the group
    check,
    dropDown, ///< a list that shows its selected row and opens
    listBox,
    multiListBox, ///< several rows can be selected
    folderList,   ///< a list of folders, drawn with their depth
    spin,
    picture, ///< the program's picture
};

/// One control of a window. Position and size in twips (1/1440 inch) from the top left of the window's client
/// area.
struct ControlSpec {
    int id;
    ControlKind kind;
    const char* text; ///< caption or first content, UTF-8
    int x;
    int y;
    int width;
    int height;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
};

/// Twips of a length given in pixels at 96 dots per inch, the raster the windows are laid out on.
constexpr int raster(int pixels) {
    return pixels * 15;
}

/// A control by its place in that raster.
constexpr ControlSpec inRaster(int id, ControlKind kind, const char* text, int x, int y, int width,
                               int height) {
    return {id, kind, text, raster(x), raster(y), raster(width), raster(height)};
}

} // namespace varno
