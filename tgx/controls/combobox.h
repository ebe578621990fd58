#pragma once

#include "tgx/controls/button.h"
#include "tgx/controls/listbox/floatingmenu.h"

/// Shows one of several texts on a button. Child buttons called "ComboPrev" and "ComboNext", if there are
/// any, step through them, as do the up and down arrow keys; a click on the box itself opens a menu of all
/// texts.
///
/// After each choice the box calls update() of the window that has the input, usually its screen, which then
/// reads getSelectedItem().
class TGX_API AComboBox : public AButton {
public:
    AComboBox(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    /// Always returns 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handleKeyInput(char key) override;
    /// Takes over the item chosen in the menu and closes the menu. Returns 0.
    int handlePopupAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Appends an item and returns its index. The first item becomes the text shown.
    int addItem(const CString& text);
    /// Removes all items; the text shown stays.
    void reset();
    int getItemCount() const { return items.GetSize(); }
    int getSelectedItem() const { return selectedItem; }
    /// Returns "" for a negative selection. One after the last item raises the invalid-argument exception,
    /// here and in the next two operations.
    CString getSelectedItemText() const;
    void setSelectedItem(int item);
    const CString& getItemText(int item) const { return items[item]; }

    // Flags are read from the lowest bit.

    int getMenuBelow() const { return menuBelow; }
    /// Sets whether the menu opens below the box or above it.
    void setMenuBelow(int set) { menuBelow = set & 1; }
    int getMenuAllowed() const { return menuAllowed; }
    /// Sets whether a click opens the menu.
    void setMenuAllowed(int set) { menuAllowed = set & 1; }
    int getWrapItems() const { return wrapItems; }
    /// Sets whether stepping wraps around at the ends.
    void setWrapItems(int set) { wrapItems = set & 1; }

protected:
    short selectedItem = 0; // its text is the window's
    CArray<CString> items;
    unsigned menuBelow : 1 = 0;
    unsigned menuAllowed : 1 = 1;
    unsigned wrapItems : 1 = 1;

private:
    struct Buttons { // null if there is none
        AButton* prev;
        AButton* next;

        void setState(E_BUTTON_STATE state);
        /// Sets each enabled button to normal, except the one that the pointer is on.
        void release(const AWnd* hit);
    };
    Buttons getButtons();
    void step(int direction, AButton* pressed);
    AListBox* getOrMakeMenu();
    void openMenu();
    void placeMenu(AListBox& menu);
    void reportChoice();
};
