#pragma once

// Start-up and shut-down reach into other parts of the library through these.

namespace Kavrel::UICore::Internal {

// Registers the property editor's element kinds with Qt's meta-type system.
void RegisterPropertyEditorElementTypes();

// Empties the property editor's process-wide table of remembered column widths.
void ClearRememberedColumnWidths();

} // namespace Kavrel::UICore::Internal
