// The bar below the panel that the status line is written on.
#pragma once

#include "app/status_text.h"
#include "platform/bundle.h"
#include "platform/view.h"

namespace r7 {

/// A name and a value on a slim bar of the panel's plate.
class StatusView final : public View {
public:
    /// Loads the bar's image from `bundle`; a missing one leaves the text on black.
    StatusView(const Rect& frame, const Bundle& bundle);

    const StatusText& text() const { return text_; }
    void set_text(StatusText text);

    void drawRect(Graphics& graphics, const Rect& dirty) override;

private:
    ImageRef bar_;
    StatusText text_;
};

} // namespace r7
