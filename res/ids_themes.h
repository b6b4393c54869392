// Resource ids of the themes area, at their documented numbers.
#pragma once
