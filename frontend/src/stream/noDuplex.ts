// Takes the place of Node's stream module, which the muxer names but needs outside browsers only.
export const Duplex = undefined
