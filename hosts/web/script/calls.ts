/** What the module exports. Elements are known by numbers that `Module` gives. */
export interface Exports {
    memory: WebAssembly.Memory;
    _initialize(): void;
    text(length: number): number;
    numbers(count: number): number;
    open(
        element: number,
        kind: number,
        rowFont: number,
        rowSize: number,
        labelFont: number,
        labelSize: number,
        languageLength: number,
        isRightToLeft: number,
    ): number;
    close(element: number): void;
    elementCount(): number;
    liveBytes(): number;
    limitMemory(bytes: number): void;
    addLanguage(length: number): number;
    fontsDidLoad(): void;
    setFonts(element: number, rowFont: number, rowSize: number, labelFont: number, labelSize: number): void;
    setLanguage(element: number, length: number, isRightToLeft: number): void;
    setLabel(element: number, length: number): void;
    setSize(element: number, width: number, height: number): void;
    reload(element: number): void;
    setTraits(element: number, traits: number): void;
    get(element: number, property: number): number;
    getLive(element: number, property: number): number;
    set(element: number, property: number, value: number): number;
    valueText(element: number): number;
    setIcons(element: number, numbers: number, count: number, labelsLength: number): void;
    setRowCounts(element: number, numbers: number, count: number): void;
    setColumn(element: number, column: number, width: number, labelLength: number): void;
    row(element: number, column: number, isLive: number): number;
    setRow(element: number, column: number, row: number): void;
    tick(element: number, time: number): number;
    draw(element: number): void;
    finish(element: number): void;
    touch(element: number, phase: number, finger: number, x: number, y: number, time: number): number;
    pointer(element: number, isInside: number, x: number, y: number): void;
    scroll(
        element: number,
        isNotches: number,
        deltaX: number,
        deltaY: number,
        x: number,
        y: number,
        time: number,
        isFinished: number,
    ): number;
    key(element: number, code: number, textLength: number, modifiers: number, isRepeat: number, time: number): number;
    setReceivesKeys(element: number, receives: number): void;
    columns(element: number): number;
    columnNumber(element: number, column: number, which: number): number;
    columnText(element: number, column: number, which: number): number;
    columnAct(element: number, column: number, action: number, argument: number): void;
}

/** What an element shows a frame on. */
export interface Drawing {
    fillRect(shape: number, x: number, y: number, width: number, height: number, radius: number, alpha: number): void;
    drawText(
        isRow: boolean,
        font: number,
        size: number,
        text: string,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        alpha: number,
        home: number,
    ): void;
    drawImage(
        image: number,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        width: number,
        height: number,
        alpha: number,
        home: number,
    ): void;
}

/** What the module tells an element, while it is being called. */
export interface Client {
    readonly surface: Drawing;
    needsFrame(): void;
    didPassRow(): void;
    didChange(): void;
    /** The title of a row of the page's own columns. */
    rowTitle(column: number, row: number): string | null;
    /** Another client's call has failed. What this one had in the module is gone with it. */
    didLoseModule(): void;
}

/** The functions of the module that need no texts. */
export type Calls = Omit<Exports, 'memory' | '_initialize' | 'text' | 'numbers' | 'addLanguage' | 'limitMemory'>;
