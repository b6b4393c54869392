// Resource ids of the ui area, at their documented numbers.
#pragma once
