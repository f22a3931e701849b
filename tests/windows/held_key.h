// Lets the system report a key as held down.
#pragma once

#include <array>

#include "widgets/windows_api.h"

namespace calquo {

/// Tells the system that a key is held, while it lives.
class HeldKey {
public:
    explicit HeldKey(int key) : key_(key) { hold(0x80); }
    ~HeldKey() { hold(0); }

private:
    void hold(BYTE state) const {
        if (key_ == 0) {
            return;
        }
        std::array<BYTE, 256> keys{};
        GetKeyboardState(keys.data());
        keys[static_cast<std::size_t>(key_)] = state;
        SetKeyboardState(keys.data());
    }

    int key_;
};

}  // namespace calquo
