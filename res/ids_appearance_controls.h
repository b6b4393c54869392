// Resource ids of the appearance pages with controls of their own: dialog templates from 150 to
// 159, control ids ten times their label's string number.
#pragma once
