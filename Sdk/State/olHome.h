#pragma once

/// Where the values of a module live while the host runs.
enum class olHome { Record, Service };
