#pragma once

#include "host/objects/WindowPlaceObject.h"

namespace kestrune::host {

// The one window of a workbook. Zoom, gridlines, headings and selection are those of its active sheet.
class WindowObject final : public WindowPlaceObject<WindowObject> {
  public:
    static const MemberTable& members();

    WindowObject(HostSession& session, OpenWorkbook& opened) : WindowPlaceObject(session), opened_(opened) {}

    [[nodiscard]] ObjectRef parent() const;
    void activate() { session().activate(*opened_.model); }
    [[nodiscard]] std::string caption() const;
    void set_caption(const std::string& caption) { opened_.caption = caption; }
    [[nodiscard]] std::int32_t index() const { return session().active() == &opened_ ? 1 : 2; }
    [[nodiscard]] ObjectRef active_sheet() const;
    [[nodiscard]] ObjectRef active_cell() const;  // Nothing on a sheet without cells
    [[nodiscard]] ObjectRef selection() const;
    [[nodiscard]] std::int32_t zoom() const;  // per cent
    void set_zoom(std::int32_t percent);      // 10 to 400
    [[nodiscard]] bool display_gridlines() const;
    void set_display_gridlines(bool shown);
    [[nodiscard]] bool display_headings() const;
    void set_display_headings(bool shown);
    [[nodiscard]] bool display_zeros() const;
    void set_display_zeros(bool shown);
    [[nodiscard]] bool freeze_panes() const;
    [[nodiscard]] std::int32_t split_row() const;  // rows above the frozen line
    [[nodiscard]] std::int32_t split_column() const;
    [[nodiscard]] std::int32_t scroll_row() const;  // the first row shown
    void set_scroll_row(std::int32_t row);
    [[nodiscard]] std::int32_t scroll_column() const;
    void set_scroll_column(std::int32_t column);
    [[nodiscard]] double usable_width() const { return space().width; }  // points
    [[nodiscard]] double usable_height() const { return space().height; }

    [[nodiscard]] WindowPlace& window_place() const { return opened_.window; }
    [[nodiscard]] Rectangle space() const;  // what the application's window leaves to it

  private:
    [[nodiscard]] Sheet& sheet() const;  // error 1004 without cells on the active sheet
    [[nodiscard]] Sheet* worksheet() const;
    void view_changed(Sheet& sheet) const;

    OpenWorkbook& opened_;
};

}  // namespace kestrune::host
