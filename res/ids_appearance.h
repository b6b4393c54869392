// Resource ids of the appearance area, at their documented numbers.
#pragma once
