#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Value.h"
#include "forms/Design.h"
#include "forms/Event.h"
#include "forms/Looks.h"
#include "forms/Picture.h"

namespace kestrune::forms {

class Control;

// What a control tells the form that it is on.
class ControlHome {
  public:
    virtual void fire(Control& control, Event event) = 0;
    // Something that is seen of the control changed.
    virtual void changed(Control& control) = 0;
    // The option button of the same group that is on; null when none is.
    [[nodiscard]] virtual Control* chosen_beside(const Control& control) = 0;

  protected:
    ~ControlHome() = default;
};

// One control of a form, of any kind, in MSForms' vocabulary. What a kind does not have, it keeps for nothing. Code
// writes the properties; what a person does goes through the form.
class Control {
  public:
    Control(ControlHome& home, const ControlDesign& design, const Control* container);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] const ControlDesign& design() const { return design_; }
    [[nodiscard]] std::string_view Name() const { return design_.name; }
    [[nodiscard]] forms::Kind kind() const { return design_.kind; }
    [[nodiscard]] bool is(forms::Kind kind) const { return design_.kind == kind; }
    [[nodiscard]] const Control* container() const { return container_; }  // null for the form itself

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void Caption(std::string caption) { assign(caption_, std::move(caption)); }
    [[nodiscard]] char Accelerator() const { return accelerator_; }
    void Accelerator(char letter) { assign(accelerator_, letter); }
    [[nodiscard]] const std::string& ControlTipText() const { return tip_; }
    void ControlTipText(std::string tip) { assign(tip_, std::move(tip)); }
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void Enabled(bool enabled) { assign(enabled_, enabled); }
    [[nodiscard]] bool Visible() const { return visible_; }
    void Visible(bool visible) { assign(visible_, visible); }
    // Whether it is seen, and can be worked with: all that holds it is so, too.
    [[nodiscard]] bool shown() const;
    [[nodiscard]] bool usable() const;

    // Option buttons and check boxes.
    [[nodiscard]] bool Checked() const { return checked_; }
    void Checked(bool checked);

    // Text and combo boxes; of a list the chosen item.
    [[nodiscard]] const std::string& Text() const { return text_; }
    void Text(std::string text);

    // Text boxes: what is marked in them, in characters as Visual Basic counts (UTF-16), from 0 on.
    [[nodiscard]] std::int32_t SelStart() const { return marked_from_; }
    [[nodiscard]] std::int32_t SelLength() const { return marked_length_; }
    void mark(std::int32_t start, std::int32_t length);

    // Lists, combo boxes and tabs: their items, and which is chosen, from 0 on; -1 for none.
    [[nodiscard]] const std::vector<std::string>& List() const { return items_; }
    void List(std::vector<std::string> items);  // nothing is chosen then
    [[nodiscard]] std::int32_t ListIndex() const { return index_; }
    void ListIndex(std::int32_t index);  // what is no place chooses nothing
    // The text of an item in one column, from 0 on; empty where there is none.
    [[nodiscard]] std::string_view item(std::int32_t index, std::size_t column) const;
    // The item that reads like a text, or whose first column does, whatever its case; -1 when none does.
    [[nodiscard]] std::int32_t place_of(std::string_view text) const;

    // Spin buttons.
    [[nodiscard]] std::int32_t Number() const { return number_; }
    void Number(std::int32_t number);  // kept between Min and Max
    [[nodiscard]] std::int32_t Min() const { return min_; }
    [[nodiscard]] std::int32_t Max() const { return max_; }
    void Range(std::int32_t min, std::int32_t max);

    [[nodiscard]] const std::shared_ptr<const forms::Picture>& Picture() const { return picture_; }
    void Picture(std::shared_ptr<const forms::Picture> picture) { assign(picture_, std::move(picture)); }

    // Of the items of a combo box whose design has them, in their order.
    [[nodiscard]] const std::vector<std::shared_ptr<const forms::Picture>>& ItemPictures() const { return pictures_; }
    void ItemPictures(std::vector<std::shared_ptr<const forms::Picture>> pictures) {
        assign(pictures_, std::move(pictures));
    }

    // Samples.
    [[nodiscard]] const forms::Looks& Looks() const { return looks_; }
    void Looks(forms::Looks looks) { assign(looks_, std::move(looks)); }

    // The value of whatever kind: a Boolean, a text (of a list with columns that of the first), a number, the place of
    // the page that is seen, what a sample looks like. Empty for labels, frames, buttons and images.
    [[nodiscard]] automation::Value Value() const;

  private:
    template <class T>
    void assign(T& member, T value) {
        if (member == value) return;
        member = std::move(value);
        home_.changed(*this);
    }
    void changed_value();  // tells what Change is for

    ControlHome& home_;
    const ControlDesign& design_;
    const Control* container_;
    std::string caption_;
    std::string tip_;
    std::string text_;
    std::vector<std::string> items_;
    std::shared_ptr<const forms::Picture> picture_;
    std::vector<std::shared_ptr<const forms::Picture>> pictures_;
    forms::Looks looks_;
    std::int32_t index_ = -1;
    std::int32_t number_ = 0;
    std::int32_t marked_from_ = 0;
    std::int32_t marked_length_ = 0;
    std::int32_t min_ = 0;
    std::int32_t max_ = 100;
    char accelerator_ = 0;
    bool enabled_ = true;
    bool visible_ = true;
    bool checked_ = false;
};

}  // namespace kestrune::forms
