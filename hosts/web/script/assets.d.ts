/** The module, packed, as base64; the build puts it in. */
declare module 'gxuipickers.wasm.gz' {
    const packed: string;
    export default packed;
}

/** How each language is loaded, by the first part of its tag; the build puts it in. */
declare module 'gxuipickers.languages' {
    const files: Readonly<Record<string, () => Promise<{ default: string }>>>;
    export default files;
}
