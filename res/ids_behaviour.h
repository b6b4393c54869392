// Resource ids of the behaviour area, at their documented numbers.
#pragma once
