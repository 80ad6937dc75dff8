// Room for a scroll bar in the grids of edit forms.
#pragma once

class TForm;

// In every grid that `form` owns, narrows the column whose index is the grid's Tag by the width of a vertical
// scroll bar; a Tag that is no column's index changes nothing.
void LeaveScrollBarRoom(TForm& form);
