/** The module, packed, as base64; the build puts it in. */
declare module 'gxuipickers.wasm.gz' {
    const packed: string;
    export default packed;
}
