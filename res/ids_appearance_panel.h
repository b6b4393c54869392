// Resource ids of the appearance pages that borrow the image panel: dialog templates from 140
// to 149, control ids ten times their label's string number.
#pragma once
