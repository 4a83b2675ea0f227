/** Identifies the panel that the active tab controls. */
export const SHEET_PANEL_ID = 'sheet-panel';
