#pragma once

namespace kestrune::host {

// A place in a session's ring of ranges that somebody holds, which follow their cells when rows or columns come and go.
// The ring belongs to whoever made its first link; each link leaves it when it goes.
class HeldRange {
  public:
    HeldRange() : next_(this), previous_(this) {}
    explicit HeldRange(HeldRange& ring) { join(ring); }
    HeldRange(const HeldRange& other) { join(const_cast<HeldRange&>(other)); }
    HeldRange& operator=(const HeldRange& other) {
        if (this == &other) return *this;
        leave();
        join(const_cast<HeldRange&>(other));
        return *this;
    }
    ~HeldRange() { leave(); }

    [[nodiscard]] HeldRange* next() const { return next_; }

  private:
    void join(HeldRange& ring) {
        next_ = ring.next_;
        previous_ = &ring;
        next_->previous_ = this;
        ring.next_ = this;
    }
    void leave() {
        next_->previous_ = previous_;
        previous_->next_ = next_;
        next_ = previous_ = this;
    }

    HeldRange* next_;
    HeldRange* previous_;
};

}  // namespace kestrune::host
